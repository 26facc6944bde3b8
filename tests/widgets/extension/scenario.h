#pragma once

#include "tests/widgets/extension/stage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <set>
#include <string>

namespace skyvane::test {

using nlohmann::json;

inline constexpr const char* firstSource = "/v2/point/";
inline constexpr const char* secondSource = "/api/v2/lat/";

/// An answer of a source: two aircraft to show, the farther one first, and one without a position.
inline constexpr const char* twoNearHome = R"({"ac": [
    {"hex": "abc001", "flight": "FAR1", "lat": 51.6, "lon": -0.1, "dst": 9.5, "dir": 10},
    {"hex": "abc002", "flight": "NEAR1", "lat": 51.5, "lon": -0.1, "dst": 1.5, "dir": 90, "alt_baro": 1200},
    {"hex": "abc003", "flight": "LOST1"}]})";

/// Answers only when the server is released.
inline void stalled(const RecordedRequest&, Connection& connection)
{
    connection.stall();
    connection.answer({.body = twoNearHome});
}

/// The words that the scenarios are told in.
class ExtensionScenario : public testing::Test {
protected:
    void setHome()
    {
        stage.setConfiguration(
            R"({"home":{"latitude":51.5,"longitude":-0.12,"label":"Home"},"radiusNM":25})");
    }

    /// The identities of the aircraft that the answer's entry shows.
    static std::set<std::string> shownIn(const json& answer) { return shownInTimeline(answer.at("result")); }

    static std::set<std::string> shownInTimeline(const json& timeline)
    {
        std::set<std::string> shown;
        const auto collect = [&](const auto& self, const json& place) -> void {
            if (place.is_object() && place.contains("id"))
                shown.insert(place["id"].get<std::string>());
            if (place.is_structured())
                for (const json& member : place)
                    self(self, member);
        };
        collect(collect, timeline.at("entries").at(0).at("view"));
        return shown;
    }

    std::set<std::string> timeline()
    {
        stage.ask(1, "widgets.timeline", radar);
        return shownIn(stage.hear());
    }

    /// `part` is found in the message.
    void expectError(int code, const json& id, const char* part = "")
    {
        const json answer = stage.hear();
        ASSERT_TRUE(answer.contains("error")) << answer;
        EXPECT_EQ(answer["jsonrpc"], "2.0");
        EXPECT_EQ(answer["id"], id);
        EXPECT_EQ(answer["error"]["code"], code);
        EXPECT_THAT(answer["error"]["message"].get<std::string>(),
            testing::AllOf(testing::HasSubstr(part), testing::Ne("")));
    }

    void expectStillAnswers()
    {
        stage.ask("still there?", "widgets.list");
        EXPECT_EQ(stage.hear()["id"], "still there?");
    }

    const json radar{{"kind", "org.skyvane.widgets.radar"}, {"family", "medium"}};
    const json allThree{{{"kind", "org.skyvane.widgets.nearest"}, {"family", "small"}}, radar,
        {{"kind", "org.skyvane.widgets.skyboard"}, {"family", "large"}}};
    Stage stage;
};

} // namespace skyvane::test
