#pragma once

#include "core/views/sky_entry.h"
#include "ui/layout/widget_container.h"

#include <string>
#include <vector>

namespace skyvane::test {

struct LaidOut {
    std::string title;
    DisplayList list;
};

/// Every widget in each of its families, in the language of the moment, by a measurer for which every
/// character is 0.6 of the size wide, and one that fills a square, as those of East Asia do, the whole size.
std::vector<LaidOut> laidOut(const SkyEntry& entry);

/// What is wrong with a laid-out widget: a text or a pictogram beyond its margins, two texts over each other.
std::vector<std::string> layoutProblems(const DisplayList& list, const TextMeasurer& measurer);

/// Every line of text in it.
std::vector<std::string> textsOf(const DisplayList& list);

} // namespace skyvane::test
