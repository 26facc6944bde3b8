#include "bench/field/measure.h"
#include "bench/field/rows.h"
#include "bench/synthetic_sky.h"
#include "paint/render.h"
#include "platform/json/value.h"
#include "ui/archive/archive.h"
#include "ui/layout/widget_container.h"
#include "widgets/skyvane_widget_bundle.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace skyvane::bench {

namespace {

struct Subject {
    std::string kind;
    WidgetFamily family;
    ContainerFamily container;

    std::string name() const { return kind + " " + std::string{WidgetContainer::name(container)}; }
};

const std::vector<Subject>& subjects()
{
    static const std::vector<Subject> list{
        {"nearest", WidgetFamily::small, ContainerFamily::small},
        {"radar", WidgetFamily::small, ContainerFamily::small},
        {"radar", WidgetFamily::medium, ContainerFamily::medium},
        {"skyboard", WidgetFamily::large, ContainerFamily::large},
    };
    return list;
}

/// All of a widget's way, each time with new fonts, so that no width is remembered from the turn before.
double fromEntryToPixels(const Subject& subject, const SkyEntry& entry, double scale)
{
    const auto widgets = SkyvaneWidgetBundle{}.body();
    const auto widget = std::ranges::find(widgets, "org.skyvane.widgets." + subject.kind, &Widget::kind);
    const FontMeasurer fonts;
    return cpuMicroseconds([&] {
        const WidgetContent content = widget->content(entry, subject.family);
        const JSON::Document archive{toArchive(content.view).dump()};
        const View view = fromArchive(archive.root());
        const DisplayList list = WidgetContainer::layout(view, subject.container, fonts);
        use(renderImage(list, content.containerBackground, scale, fonts));
    });
}

double emptyPicture(const Subject& subject, double scale)
{
    const Size size = WidgetContainer::size(subject.container);
    return cpuMicroseconds([&] {
        QImage image(static_cast<int>(size.width * scale), static_cast<int>(size.height * scale),
            QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::black);
        use(image.constBits());
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
                    [&] { return emptyPicture(subject, scale); }});
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
