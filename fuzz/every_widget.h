#pragma once

#include "fuzz/fuzzer.h"
#include "protocol/record_codec.h"
#include "tests/ui/layout/even_measurer.h"
#include "ui/archive/archive.h"
#include "ui/layout/dump.h"
#include "ui/layout/widget_container.h"
#include "widgets/extension/answers.h"

#include <string>

namespace skyvane::fuzz {

/// Every widget in every family from this entry, through the archive and laid out as a host does.
inline void showEverywhere(const SkyEntry& entry)
{
    for (const Widget& widget : SkyvaneWidgetBundle{}.body()) {
        for (const WidgetFamily family : widget.supportedFamilies) {
            const View view = widget.content(entry, family).view;
            const std::string archive = toArchive(view).dump();
            const JSON::Document document{archive};
            require(fromArchive(document.root()) == view);
            const Protocol::OneEntry result{
                Extension::widgetEntry(entry, {.widget = &widget, .family = family})};
            const std::string line = Extension::resultLine("1", Protocol::write(result));
            require(line.size() <= Protocol::Limits::longestTimeline && line.find('\n') == line.size() - 1);
            dump(WidgetContainer::layout(view, family, test::EvenMeasurer{}));
        }
    }
}

} // namespace skyvane::fuzz
