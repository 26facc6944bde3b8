#pragma once

#include "companion/feed/sky_feed.h"
#include "companion/look/credits.h"

#include <QString>

#include <vector>

/// What became of asking each source, in words.
namespace skyvane::SourceWords {

/// "adsb.lol refuses to answer (403).", a line for each source that was asked in vain.
QString reasons(const SkyReport& report);

/// Whether nothing can be reached at all, as without a network.
bool isOffLine(const SkyReport& report);

/// A word for each source that was asked: "answered", "refused".
std::vector<Credits::Remark> remarks(const SkyReport& report);

} // namespace skyvane::SourceWords
