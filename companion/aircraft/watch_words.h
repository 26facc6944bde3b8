#pragma once

#include "companion/aircraft/aircraft_watch.h"
#include "companion/look/heading.h"
#include "companion/look/notice_bar.h"
#include "companion/sky/empty_sky.h"

#include <optional>

/// Texts of one aircraft's page about whether it is in range.
namespace skyvane::WatchWords {

Heading heading(const AircraftWatch& watch, const SkyReport& report);

/// What is said in place of the details; absent when there are any.
std::optional<EmptySky::Words> instead(const AircraftWatch& watch, const SkyReport& report);

/// What is said above details that are no longer up to date, and why they are not; empty while they are.
NoticeBar::Words notice(const AircraftWatch& watch, const SkyReport& report);

} // namespace skyvane::WatchWords
