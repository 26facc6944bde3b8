#include "bench/field/rows.h"
#include "bench/field/run.h"
#include "protocol/request.h"
#include "tests/support/scratch_folder.h"

namespace skyvane::bench {

namespace {

template <class Call>
Contestant extensionAsked(const Programs& programs, const Call& call)
{
    return {.line = Protocol::requestLine(1, call), .words = {programs.extension.string()}};
}

} // namespace

Rows timelineRows(const Programs& programs)
{
    const WidgetTarget board{.kind = "org.skyvane.widgets.skyboard", .family = WidgetFamily::large};
    const test::ScratchFolder folder;
    const std::string file = (folder.path() / "answer.json").string();
    const auto runs = runInTurn(programs, 21,
        {
            extensionAsked(programs, Protocol::TimelineCall{.params = board}),
            curlPipedToJq(),
            // Of a pipe, only the largest process is known.
            curl(file),
            jq(file),
        });
    const auto row
        = [&](const char* figure, const char* unit, double Run::*member, double theirs, double most) {
              return Row{std::string{"one timeline, whole process: "} + figure, unit,
                  medianOf(runs[0], member), "curl piped to jq", theirs, Target{.most = most}};
          };
    return {
        row("CPU", "ms", &Run::cpuMilliseconds, medianOf(runs[1], &Run::cpuMilliseconds), 0.17),
        row("peak memory, of both programs beside", "MiB", &Run::peakMiB,
            medianOf(runs[2], &Run::peakMiB) + medianOf(runs[3], &Run::peakMiB), 1),
        row("first line", "ms", &Run::firstLineMilliseconds, medianOf(runs[1], &Run::firstLineMilliseconds),
            1),
    };
}

Rows extensionStartRows(const Programs& programs)
{
    const auto runs = runInTurn(programs, 61,
        {
            extensionAsked(programs, Protocol::ListCall{}),
            {.line = "", .words = {programs.hello.string()}},
        });
    const auto first = [&](std::size_t index) { return medianOf(runs[index], &Run::firstLineMilliseconds); };
    return {{"extension start to first answer", "ms", first(0), "“hello” with the same libraries", first(1),
        Target{.most = 1.15}}};
}

} // namespace skyvane::bench
