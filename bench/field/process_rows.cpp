#include "bench/field/rows.h"
#include "bench/field/run.h"
#include "protocol/request.h"
#include "tests/support/scratch_folder.h"

namespace skyvane::bench {

namespace {

std::string listRequest()
{
    return Protocol::requestLine(1, Protocol::ListCall{});
}

std::string timelineRequest()
{
    const WidgetTarget board{.kind = "org.skyvane.widgets.skyboard", .family = WidgetFamily::large};
    return Protocol::requestLine(1, Protocol::TimelineCall{.params = board});
}

/// The same request, the same choice, the same order.
constexpr const char* download = "curl --silent --fail https://api.adsb.lol/v2/point/51.50000/-0.12000/250";
constexpr const char* choose
    = "jq --compact-output '[(.ac // .aircraft // [])[] "
      "| select(.lat != null and .lon != null and (.seen_pos // 0) < 60)] | sort_by(.dst // infinite)'";

} // namespace

Rows timelineRows(const Programs& programs)
{
    const auto shell = [](const std::string& script) {
        return Contestant{.line = "", .words = {"sh", "-c", script}};
    };
    const test::ScratchFolder folder;
    const std::string file = (folder.path() / "answer.json").string();
    const auto runs = runInTurn(programs, 21,
        {
            {.line = timelineRequest(), .words = {programs.extension.string()}},
            shell(std::string{download} + " | " + choose),
            // Of a pipe, only the largest process is known.
            shell(std::string{"exec "} + download + " --output " + file),
            shell(std::string{"exec "} + choose + " " + file),
        });
    const std::string what = "one timeline of 1000 aircraft over HTTPS, whole process: ";
    const auto row = [&](const char* figure, const char* unit, double Run::*member, double theirs) {
        return Row{
            what + figure, unit, medianOf(runs[0], member), "curl piped to jq", theirs, Target{.most = 1}};
    };
    return {
        row("CPU", "ms", &Run::cpuMilliseconds, medianOf(runs[1], &Run::cpuMilliseconds)),
        row("peak memory, of both programs beside", "MiB", &Run::peakMiB,
            medianOf(runs[2], &Run::peakMiB) + medianOf(runs[3], &Run::peakMiB)),
        row("first line", "ms", &Run::firstLineMilliseconds, medianOf(runs[1], &Run::firstLineMilliseconds)),
    };
}

Rows startRows(const Programs& programs)
{
    const auto runs = runInTurn(programs, 61,
        {
            {.line = listRequest(), .words = {programs.extension.string()}},
            {.line = "", .words = {programs.hello.string()}},
            {.line = "", .words = {"true"}},
        });
    const auto first = [&](std::size_t index) { return medianOf(runs[index], &Run::firstLineMilliseconds); };
    const std::string what = "extension start to first answer";
    return {
        {what, "ms", first(0), "a “hello” linked to the same libraries", first(1), Target{.most = 1.3}},
        {what, "ms", first(0), "/bin/true", first(2)},
    };
}

} // namespace skyvane::bench
