#pragma once

#include "platform/net/transport.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <chrono>
#include <functional>
#include <stop_token>
#include <string>
#include <utility>
#include <vector>

namespace skyvane::test {

inline const HTTPHeader expectedUserAgent{
    .name = "User-Agent", .value = "Skyvane/1.1 (+mailto:" SKYVANE_CONTACT_EMAIL ")"};

/// Gives every request the same answer and keeps what it was asked.
struct FakeService {
    std::function<URLResponse()> answer;
    std::vector<URLRequest> requests{};

    static FakeService answering(std::string body, int status = 200)
    {
        return {.answer = [=] { return URLResponse{.status = status, .body = body}; }};
    }

    template <class Error>
    static FakeService failing(Error error)
    {
        return {.answer = [=]() -> URLResponse { throw error; }};
    }

    Transport transport()
    {
        return [this](const URLRequest& request, const std::stop_token&) {
            requests.push_back(request);
            return answer();
        };
    }

    /// The one request that there was.
    void expectOnlyRequest(const std::string& url) const
    {
        const URLRequest expected{.url = URL::parse(url).value(),
            .timeout = std::chrono::seconds{8},
            .headers = {expectedUserAgent}};
        EXPECT_EQ(requests, std::vector{expected});
    }
};

using JSONText = nlohmann::ordered_json;

/// The document with another value at a place.
inline JSONText changed(JSONText document, const std::string& pointer, const JSONText& value)
{
    document[JSONText::json_pointer{pointer}] = value;
    return document;
}

/// The document without one member.
inline JSONText without(JSONText document, const std::string& parent, const std::string& key)
{
    document[JSONText::json_pointer{parent}].erase(key);
    return document;
}

/// One value of every other type than the document's own at that place, null excepted.
inline std::vector<JSONText> wrongValues(const JSONText& document, const std::string& pointer)
{
    const JSONText& right = document[JSONText::json_pointer{pointer}];
    std::vector<JSONText> values;
    for (JSONText value : {JSONText(7), JSONText(1.5), JSONText(true), JSONText("text"), JSONText::array(),
             JSONText::object()}) {
        if (value.type() != right.type())
            values.push_back(std::move(value));
    }
    return values;
}

} // namespace skyvane::test
