#include "bench/subjects.h"
#include "bench/synthetic_sky.h"
#include "paint/render.h"
#include "platform/json/value.h"
#include "ui/archive/archive.h"

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>

#include <string>

namespace skyvane::bench {
namespace {

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
        benchmark::DoNotOptimize(WidgetContainer::layout(view, subject.family, fonts));
    }
}

void paint(benchmark::State& state, const Subject& subject)
{
    const WidgetContent content = contentOf(subject, syntheticEntry(40));
    const FontMeasurer fonts;
    const DisplayList list = WidgetContainer::layout(content.view, subject.family, fonts);
    for ([[maybe_unused]] const auto iteration : state) {
        const auto scale = static_cast<double>(state.range(0));
        benchmark::DoNotOptimize(renderImage(list, content.containerBackground, scale, fonts));
    }
}

void emptyImage(benchmark::State& state, const Subject& subject)
{
    for ([[maybe_unused]] const auto iteration : state)
        fillEmptyPicture(subject, static_cast<double>(state.range(0)));
}

void registerAll(const Subject& subject)
{
    const auto add = [&](const char* what, auto* function) {
        return benchmark::RegisterBenchmark(
            (std::string{what} + "/" + subject.name()).c_str(), function, subject)
            ->Unit(benchmark::kMicrosecond);
    };
    add("tree", tree)->Arg(40)->Arg(5000);
    add("archiveOutAndIn", archiveOutAndIn);
    add("layout", layout);
    add("paint", paint)->Arg(1)->Arg(2);
    add("emptyImage", emptyImage)->Arg(1)->Arg(2);
}

const bool isRegistered = [] {
    for (const Subject& subject : subjects())
        registerAll(subject);
    return true;
}();

} // namespace
} // namespace skyvane::bench
