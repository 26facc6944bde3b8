#include "bench/synthetic_sky.h"

#include "paint/render.h"
#include "platform/json/value.h"
#include "ui/archive/archive.h"
#include "ui/layout/widget_container.h"
#include "widgets/skyvane_widget_bundle.h"

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <string>

namespace skyvane::bench {
namespace {

struct Subject {
    std::string kind;
    WidgetFamily family;
    ContainerFamily container;
};

WidgetContent contentOf(const Subject& subject, const SkyEntry& entry)
{
    const auto widgets = SkyvaneWidgetBundle{}.body();
    return std::ranges::find(widgets, "org.skyvane.widgets." + subject.kind, &Widget::kind)
        ->content(entry, subject.family);
}

void tree(benchmark::State& state, const Subject& subject)
{
    const SkyEntry entry = syntheticEntry(static_cast<std::size_t>(state.range(0)));
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(contentOf(subject, entry));
}

void archiveOutAndIn(benchmark::State& state, const Subject& subject)
{
    const View view = contentOf(subject, syntheticEntry(40)).view;
    for ([[maybe_unused]] const auto iteration : state) {
        const JSON::Document document{toArchive(view).dump()};
        benchmark::DoNotOptimize(fromArchive(document.root()));
    }
}

/// With a new measurer each time, so that no width is remembered from the turn before.
void layout(benchmark::State& state, const Subject& subject)
{
    const View view = contentOf(subject, syntheticEntry(40)).view;
    for ([[maybe_unused]] const auto iteration : state) {
        state.PauseTiming();
        const FontMeasurer fonts;
        state.ResumeTiming();
        benchmark::DoNotOptimize(WidgetContainer::layout(view, subject.container, fonts));
    }
}

void paint(benchmark::State& state, const Subject& subject)
{
    const WidgetContent content = contentOf(subject, syntheticEntry(40));
    const FontMeasurer fonts;
    const DisplayList list = WidgetContainer::layout(content.view, subject.container, fonts);
    for ([[maybe_unused]] const auto iteration : state) {
        const auto scale = static_cast<double>(state.range(0));
        benchmark::DoNotOptimize(renderImage(list, content.containerBackground, scale, fonts));
    }
}

void emptyImage(benchmark::State& state, const Subject& subject)
{
    const Size size = WidgetContainer::size(subject.container);
    const auto scale = static_cast<double>(state.range(0));
    for ([[maybe_unused]] const auto iteration : state) {
        QImage image(static_cast<int>(size.width * scale), static_cast<int>(size.height * scale),
            QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::black);
        benchmark::DoNotOptimize(image.constBits());
    }
}

void registerAll(const char* name, const Subject& subject)
{
    const auto add = [&](const char* what, auto* function) {
        return benchmark::RegisterBenchmark((std::string{what} + "/" + name).c_str(), function, subject)
            ->Unit(benchmark::kMicrosecond);
    };
    add("tree", tree)->Arg(40)->Arg(5000);
    add("archiveOutAndIn", archiveOutAndIn);
    add("layout", layout);
    add("paint", paint)->Arg(1)->Arg(2);
    add("emptyImage", emptyImage)->Arg(1)->Arg(2);
}

const bool isRegistered = [] {
    registerAll("nearest small", {"nearest", WidgetFamily::small, ContainerFamily::small});
    registerAll("radar small", {"radar", WidgetFamily::small, ContainerFamily::small});
    registerAll("radar medium", {"radar", WidgetFamily::medium, ContainerFamily::medium});
    registerAll("skyboard large", {"skyboard", WidgetFamily::large, ContainerFamily::large});
    return true;
}();

} // namespace
} // namespace skyvane::bench
