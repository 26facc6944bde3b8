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

double fromEntryToPixels(
    const Subject& subject, const SkyEntry& entry, double scale, const FontMeasurer& fonts)
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
Row scaleRow(const Subject& subject, double scale, std::size_t turns, const FontMeasurer& fonts)
{
    unsigned moment = 0;
    const auto medians = interleaved(turns,
        {[&] { return fromEntryToPixels(subject, syntheticEntry(40, ++moment), scale, fonts); },
            [&] { return cpuMicroseconds([&] { fillEmptyPicture(subject, scale); }); }});
    return {subject.name() + ", entry to pixels, scale " + std::to_string(std::lround(scale)), "µs",
        medians[0], "an empty picture, filled", medians[1], Target{.most = 3000, .isRatio = false}};
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
        for (const double scale : {1.0, 2.0})
            rows.push_back(scaleRow(subject, scale, turns, fonts));
        const auto medians = interleaved(turns,
            {[&] { return fromEntryToPixels(subject, many, 2, fonts); },
                [&] { return fromEntryToPixels(subject, few, 2, fonts); }});
        rows.push_back({subject.name() + ", of 5000 aircraft, scale 2", "µs", medians[0], "of 40", medians[1],
            Target{.most = 1.1}});
    }
    return rows;
}

} // namespace skyvane::bench
