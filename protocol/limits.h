#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>

/// The bounds that docs/protocol.md sets.
namespace skyvane::Protocol::Limits {

inline constexpr std::int64_t version = 1; ///< Of the protocol.

inline constexpr std::size_t longestRequest = std::size_t{64} << 10; ///< Bytes of a line, without its break.
inline constexpr std::size_t longestTimeline = std::size_t{256} << 10; ///< Bytes of an answer with one.
inline constexpr std::size_t mostWidgets = 16; ///< Of one `widgets.timelines`.
inline constexpr std::size_t longestAlerts = longestTimeline; ///< Bytes of all alerts in an answer.
inline constexpr std::size_t longestAnswer
    = mostWidgets * longestTimeline + longestAlerts; ///< Bytes of a line.
inline constexpr std::size_t mostPatterns = 200; ///< Of a watch list.
inline constexpr double longestWithin = 3600; ///< Seconds that an overhead pass is foreseen.
inline constexpr std::size_t mostRequests = 64; ///< That run at once.

inline constexpr std::chrono::seconds timeToAnswer{30}; ///< Later, the host takes the extension for stalled.
inline constexpr std::chrono::seconds timeToEnd{1}; ///< After the end of the extension's input.
inline constexpr std::chrono::seconds betweenTimelines{5}; ///< Of any two calls of a host that ask the feed.

/// A bound of bytes in words: "64 KiB".
inline std::string inKiB(std::size_t bytes)
{
    return std::to_string(bytes >> 10) + " KiB";
}

} // namespace skyvane::Protocol::Limits
