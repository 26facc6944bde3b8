#pragma once

#include "platform/clock.h"
#include "platform/net/url.h"
#include "protocol/members.h"

#include <optional>
#include <string>

namespace skyvane {

/// Something worth telling the user.
struct Alert {
    std::string id; ///< The same for the same aircraft and reason.
    Date at; ///< When to tell.
    std::string title;
    std::string body;
    std::optional<URL> url{}; ///< What a click opens; absent, too, for what is no URL.

    bool operator==(const Alert&) const = default;
};

template <>
struct Protocol::Members<Alert> {
    static constexpr auto list = std::tuple{
        member("id", &Alert::id),
        member("at", &Alert::at),
        member("title", &Alert::title),
        member("body", &Alert::body),
        nullable("url", &Alert::url),
    };
};

} // namespace skyvane
