#include "widgets/extension/answers.h"

#include "ui/archive/archive.h"
#include "ui/layout/widget_container.h"

#include <utility>

namespace skyvane::Extension {

namespace {

constexpr std::size_t longestAnswer = std::size_t{256} << 10;

double seconds(Date date)
{
    return static_cast<double>(date.time_since_epoch().count()) / 1000;
}

Result entryJSON(const SkyEntry& entry, const PlacedWidget& placed)
{
    const WidgetContent content = placed.widget->content(entry, placed.family);
    return {
        {"date", seconds(entry.date)},
        {"isSample", entry.isSample},
        {"view", toArchive(content.view)},
        {"background", toArchive(content.containerBackground)},
        {"url", content.widgetURL ? Result(content.widgetURL->text()) : Result(nullptr)},
    };
}

/// `id` is JSON already.
std::string line(const RequestID& id, const char* member, const Result& value)
{
    return R"({"jsonrpc":"2.0","id":)" + id + ",\"" + member
        + "\":" + value.dump(-1, ' ', /*ensure_ascii=*/false, Result::error_handler_t::replace) + "}\n";
}

} // namespace

Result listResult(const std::vector<Widget>& offered)
{
    Result list = Result::array();
    for (const Widget& widget : offered) {
        Result families = Result::array();
        for (const WidgetFamily family : widget.supportedFamilies)
            families.push_back(WidgetContainer::name(family));
        list.push_back({
            {"kind", widget.kind},
            {"displayName", widget.displayName},
            {"description", widget.description},
            {"families", std::move(families)},
        });
    }
    return {{"protocol", 1}, {"widgets", std::move(list)}};
}

Result entryResult(const SkyEntry& entry, const PlacedWidget& placed)
{
    return {{"entry", entryJSON(entry, placed)}};
}

Result timelineResult(const Timeline& timeline, const PlacedWidget& placed)
{
    Result entries = Result::array();
    for (const SkyEntry& entry : timeline.entries)
        entries.push_back(entryJSON(entry, placed));
    return {
        {"entries", std::move(entries)},
        {"reload", {{"policy", "after"}, {"date", seconds(timeline.reloadAfter)}}},
    };
}

std::string resultLine(const RequestID& id, const Result& result)
{
    std::string text = line(id, "result", result);
    if (text.size() > longestAnswer)
        return errorLine(id, ErrorCode::internalError, "the answer is longer than 256 KiB");
    return text;
}

std::string errorLine(const RequestID& id, ErrorCode code, std::string_view message)
{
    return line(id, "error", {{"code", static_cast<int>(code)}, {"message", message}});
}

} // namespace skyvane::Extension
