#include "bench/field/measure.h"
#include "bench/field/rows.h"
#include "bench/subjects.h"
#include "bench/synthetic_sky.h"
#include "paint/render.h"
#include "platform/json/value.h"
#include "ui/archive/archive.h"

#include <nlohmann/json.hpp>

namespace skyvane::bench {

namespace {

constexpr double scale = 2;

double fromEntryToPixels(const Subject& subject, const SkyEntry& entry, const FontMeasurer& fonts)
{
    return cpuMicroseconds([&] {
        const WidgetContent content = contentOf(subject, entry);
        const JSON::Document archive{toArchive(content.view).dump()};
        const View view = fromArchive(archive.root());
        const DisplayList list = WidgetContainer::layout(view, subject.family, fonts);
        use(renderImage(list, content.containerBackground, scale, fonts));
    });
}

/// As in a host that refreshes: the same fonts, and each time another sky with texts of its own.
Row pixelsRow(const Subject& subject, std::size_t turns, const FontMeasurer& fonts)
{
    unsigned moment = 0;
    const auto medians = interleaved(turns,
        {[&] { return fromEntryToPixels(subject, syntheticEntry(40, ++moment), fonts); },
            [&] { return cpuMicroseconds([&] { fillEmptyPicture(subject, scale); }); }});
    return {"one widget, tree to pixels, scale 2: " + subject.name(), "µs", medians[0],
        "an empty picture, filled", medians[1], Target{.most = 3000, .isRatio = false}};
}

} // namespace

Rows widgetRows()
{
    constexpr std::size_t turns = 101;
    const FontMeasurer fonts;
    const SkyEntry few = syntheticEntry(40);
    const SkyEntry many = syntheticEntry(5000);
    Rows rows;
    for (const Subject& subject : subjects()) {
        rows.push_back(pixelsRow(subject, turns, fonts));
        const auto medians = interleaved(turns,
            {[&] { return fromEntryToPixels(subject, many, fonts); },
                [&] { return fromEntryToPixels(subject, few, fonts); }});
        rows.push_back({"the same of 5000 aircraft: " + subject.name(), "µs", medians[0], "of 40", medians[1],
            Target{.most = 1.1}});
    }
    return rows;
}

} // namespace skyvane::bench
