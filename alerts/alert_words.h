#pragma once

#include "alerts/flight_ahead.h"
#include "core/model/aircraft.h"
#include "core/model/home_location.h"

#include <chrono>
#include <optional>
#include <string>

/// What alerts say, in the user's language: plain text on one line, at most `Unicode::longestShown`
/// characters.
namespace skyvane::AlertWords {

struct Words {
    std::string title; ///< The reason.
    std::string body; ///< A sentence that begins with the aircraft's name.

    bool operator==(const Words&) const = default;
};

/// From where an aircraft is looked at, and in what its distance is said.
struct Observer {
    std::optional<HomeLocation> home;
    std::string unit; ///< As `Aircraft::distanceText` takes it.
};

Words emergency(const Aircraft& aircraft, const Observer& observer);
Words military(const Aircraft& aircraft, const Observer& observer);
Words watched(const Aircraft& aircraft, const Observer& observer);

/// `wait`: from when it is told until the aircraft is nearest.
Words overhead(const Aircraft& aircraft, const SkyPosition& pass, std::chrono::duration<double> wait);

} // namespace skyvane::AlertWords
