#pragma once

#include "core/feed/fetch_error.h"
#include "core/model/aircraft.h"
#include "core/model/home_location.h"
#include "platform/net/transport.h"

#include <cstddef>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

/// The aircraft around home, from two community aggregators in a fixed order. Nothing is cached.
namespace skyvane::ADSB {

/// Those with a position younger than 60 seconds, nearest first by the aggregator's own distance; the second
/// source is asked when the first fails or has none. The radius, nautical miles, becomes what
/// `SearchRadius::asked` makes of it. Throws `FetchError` when no source answered and `CancellationError` at
/// once when `stop` asks for it.
std::vector<Aircraft> fetch(
    const HomeLocation& home, double radiusNM, const Transport& transport, std::stop_token stop = {});

/// What became of asking one source.
struct Inquiry {
    std::string source; ///< Its host.
    std::size_t count = 0; ///< Of the aircraft that it knows, with a fresh position.
    std::optional<FetchCause> problem{}; ///< Why there was no answer.

    bool operator==(const Inquiry&) const = default;
};

/// The same as `fetch` gives, and how it came about.
struct Answer {
    std::vector<Aircraft> aircraft{};
    std::vector<Inquiry> asked{}; ///< In the order in which they were asked.
    std::optional<FetchError> problem{}; ///< What `fetch` would throw.
};

/// Asks as `fetch` does. Throws `CancellationError` only.
Answer ask(const HomeLocation& home, double radiusNM, const Transport& transport, std::stop_token stop = {});

} // namespace skyvane::ADSB
