#include "ui/archive/archive.h"

#include "fuzz/fuzzer.h"
#include "tests/ui/layout/even_measurer.h"
#include "ui/layout/dump.h"
#include "ui/layout/widget_container.h"

#include <nlohmann/json.hpp>

namespace {

using namespace skyvane;

/// Absent for what is no archive of a view.
std::optional<View> viewIn(std::string_view archive)
{
    try {
        const JSON::Document document{archive};
        return fromArchive(document.root());
    } catch (const JSON::DecodingError&) {
        return std::nullopt;
    }
}

} // namespace

/// A view from a stranger's archive, as far as the display list.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const auto view = viewIn(fuzz::text(data, size));
    if (!view)
        return 0;
    fuzz::require(viewIn(toArchive(*view).dump()) == view);
    for (const WidgetFamily family : WidgetContainer::families)
        dump(WidgetContainer::layout(*view, family, test::EvenMeasurer{}));
    return 0;
}
