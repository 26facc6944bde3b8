#pragma once

#include "companion/feed/sky_feed.h"
#include "companion/look/heading.h"
#include "companion/look/notice_bar.h"
#include "companion/sky/empty_sky.h"

#include <optional>
#include <string>

/// What the sky page says in words.
namespace skyvane::SkyWords {

/// "as of 10:42:07", in the user's language: with seconds, so that every refresh leaves a trace.
std::string asOf(Date date);

Heading heading(const SkyReport& report);

/// What is said where nobody answered.
EmptySky::Words noAnswer(const SkyReport& report);

/// What is said in place of the list; absent when there are aircraft to list.
std::optional<EmptySky::Words> instead(const SkyReport& report);

/// What is said above a list that is no longer up to date, and why it is not; empty while it is.
NoticeBar::Words notice(const SkyReport& report);

} // namespace skyvane::SkyWords
