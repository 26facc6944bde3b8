#include "bench/field/measure.h"
#include "bench/field/rows.h"
#include "bench/subjects.h"
#include "bench/synthetic_sky.h"
#include "paint/render.h"
#include "platform/json/value.h"
#include "ui/archive/archive.h"

#include <nlohmann/json.hpp>

#include <cmath>

namespace skyvane::bench {

namespace {

/// All of a widget's way, each time with new fonts, so that no width is remembered from the turn before.
double fromEntryToPixels(const Subject& subject, const SkyEntry& entry, double scale)
{
    const FontMeasurer fonts;
    return cpuMicroseconds([&] {
        const WidgetContent content = contentOf(subject, entry);
        const JSON::Document archive{toArchive(content.view).dump()};
        const View view = fromArchive(archive.root());
        const DisplayList list = WidgetContainer::layout(view, subject.container, fonts);
        use(renderImage(list, content.containerBackground, scale, fonts));
    });
}

} // namespace

Rows widgetRows()
{
    constexpr std::size_t turns = 101;
    const SkyEntry few = syntheticEntry(40);
    const SkyEntry many = syntheticEntry(5000);
    Rows rows;
    for (const Subject& subject : subjects()) {
        for (const double scale : {1.0, 2.0}) {
            const auto medians = interleaved(turns,
                {[&] { return fromEntryToPixels(subject, few, scale); },
                    [&] { return cpuMicroseconds([&] { fillEmptyPicture(subject, scale); }); }});
            rows.push_back({subject.name() + ", entry to pixels, scale " + std::to_string(std::lround(scale)),
                "µs", medians[0], "an empty picture, filled", medians[1],
                Target{.most = 3000, .isRatio = false}});
        }
        const auto medians = interleaved(turns,
            {[&] { return fromEntryToPixels(subject, many, 2); },
                [&] { return fromEntryToPixels(subject, few, 2); }});
        rows.push_back({subject.name() + ", of 5000 aircraft, scale 2", "µs", medians[0], "of 40", medians[1],
            Target{.most = 1.1}});
    }
    return rows;
}

} // namespace skyvane::bench
