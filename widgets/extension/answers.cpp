#include "widgets/extension/answers.h"

#include "platform/text/printable.h"
#include "protocol/json_rpc.h"

#include <nlohmann/json.hpp>

#include <utility>
#include <variant>

namespace skyvane::Extension {

namespace {

namespace JsonRPC = Protocol::JsonRPC;
namespace Limits = Protocol::Limits;

std::string member(std::string_view name, std::string_view json)
{
    return '"' + std::string{name} + "\":" + std::string{json};
}

/// `id` is JSON already.
std::string line(const RequestID& id, std::string_view name, const Result& value)
{
    return '{' + member(JsonRPC::jsonrpc, Result(JsonRPC::version).dump()) + ',' + member(JsonRPC::id, id)
        + ',' + member(name, value.dump(-1, ' ', /*ensure_ascii=*/false, Result::error_handler_t::replace))
        + "}\n";
}

} // namespace

Protocol::WidgetList widgetList(const std::vector<Widget>& offered)
{
    Protocol::WidgetList list;
    for (const Widget& widget : offered) {
        list.widgets.push_back({
            .kind = widget.kind,
            .displayName = widget.displayName,
            .description = widget.description,
            .families = widget.supportedFamilies,
        });
    }
    return list;
}

WidgetEntry widgetEntry(const SkyEntry& entry, const OfferedWidget& widget)
{
    WidgetContent content = widget.widget->content(entry, widget.family);
    return {
        .date = entry.date,
        .isSample = entry.isSample,
        .view = std::move(content.view),
        .background = content.containerBackground,
        .url = std::move(content.widgetURL),
    };
}

WidgetTimeline widgetTimeline(const SkyTimeline& timeline, const OfferedWidget& widget)
{
    WidgetTimeline shown{.entries = {}, .reload = {.date = timeline.reloadAfter}};
    for (const SkyEntry& entry : timeline.entries)
        shown.entries.push_back(widgetEntry(entry, widget));
    return shown;
}

std::size_t longestResult(const AnyCall& call)
{
    const auto* several = std::get_if<Protocol::TimelinesCall>(&call);
    if (several == nullptr)
        return Limits::longestTimeline;
    const auto& [widgets, alerts] = several->params;
    return widgets.size() * Limits::longestTimeline + (alerts ? Limits::longestAlerts : 0);
}

std::string resultLine(const RequestID& id, const Result& result, std::size_t longest)
{
    std::string text = line(id, JsonRPC::result, result);
    if (text.size() > longest)
        return errorLine(id, ErrorCode::internalError, "the answer is longer than " + Limits::inKiB(longest));
    return text;
}

std::string errorLine(const RequestID& id, ErrorCode code, std::string_view message)
{
    const std::string shown = Unicode::oneLine(std::string{message}, Unicode::longestLine);
    return line(id, JsonRPC::error, {{JsonRPC::code, static_cast<int>(code)}, {JsonRPC::message, shown}});
}

} // namespace skyvane::Extension
