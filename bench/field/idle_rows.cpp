#include "bench/field/process_watch.h"
#include "bench/field/rows.h"
#include "tests/session/wait_for.h"

#include <chrono>
#include <fstream>
#include <list>
#include <stdexcept>
#include <thread>

namespace skyvane::bench {

namespace {

using namespace std::chrono_literals;

struct Program {
    QProcess process;

    Program(const test::XSession& session, const QString& name, const QStringList& words)
    {
        process.setProcessEnvironment(session.environment());
        process.setStandardOutputFile(QProcess::nullDevice());
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(name, words);
        if (!process.waitForStarted())
            throw std::runtime_error{name.toStdString() + " does not start"};
    }
    ~Program()
    {
        process.terminate();
        process.waitForFinished();
    }

    pid_t id() const { return static_cast<pid_t>(process.processId()); }
};

/// A window of this size with a dozen lines of text that it looks at again after five minutes.
void writeConkyConfiguration(const std::filesystem::path& file, QSize size, int top)
{
    const std::string width = std::to_string(size.width());
    const std::string height = std::to_string(size.height());
    std::ofstream{file}
        << "conky.config = { own_window = true, own_window_type = 'desktop', double_buffer = true,\n"
           "use_xft = true, font = 'DejaVu Sans Mono:size=9', update_interval = 300,\n"
           "alignment = 'top_left', gap_x = 20, gap_y = "
        << top << ", minimum_width = " << width << ", maximum_width = " << width
        << ", minimum_height = " << height << " }\nconky.text = [[\n";
    std::ofstream stream{file, std::ios::app};
    for (int line = 0; line < 12; ++line)
        stream << "AIRCRAFT " << line << "  12.5 km  FL350\n";
    stream << "]]\n";
}

Memory memoryOfAll(const std::list<Program>& programs)
{
    Memory sum{};
    for (const Program& program : programs) {
        const Memory memory = memoryOf(program.id());
        sum.residentMiB += memory.residentMiB;
        sum.proportionalMiB += memory.proportionalMiB;
    }
    return sum;
}

std::vector<WakeUps> wakeUpsOfAll(const std::list<Program>& programs)
{
    std::vector<WakeUps> list;
    for (const Program& program : programs)
        list.push_back(wakeUpsOf(program.id()));
    return list;
}

double allWakeUpsBetween(const std::vector<WakeUps>& before, const std::vector<WakeUps>& after)
{
    std::uint64_t sum = 0;
    for (std::size_t index = 0; index < before.size(); ++index)
        sum += wakeUpsBetween(before[index], after[index]);
    return static_cast<double>(sum);
}

/// All timelines have come, the extension has ended, and so have the threads that the toolkit painted with,
/// after 30 s.
void waitForRest(const Program& host)
{
    if (!test::waitFor([&] { return hasChildren(host.id()); }, 20s)
        || !test::waitFor([&] { return !hasChildren(host.id()); }, 60s))
        throw std::runtime_error{"the host does not come to rest"};
    std::this_thread::sleep_for(35s);
}

} // namespace

Rows idleRows(const Programs& programs, const test::XSession& session)
{
    const test::ScratchFolder folder;
    std::list<Program> hosts;
    hosts.emplace_back(session, QString::fromStdString(programs.host.string()), QStringList{});
    std::list<Program> conkys;
    int top = 20;
    for (const QSize size : {QSize{170, 170}, QSize{364, 170}, QSize{364, 382}}) {
        const std::filesystem::path file = folder.path() / std::to_string(top);
        writeConkyConfiguration(file, size, top);
        conkys.emplace_back(session, "conky", QStringList{"-c", QString::fromStdString(file.string())});
        top += size.height() + 20;
    }
    waitForRest(hosts.front());

    const auto hostBefore = wakeUpsOfAll(hosts);
    const auto conkyBefore = wakeUpsOfAll(conkys);
    std::this_thread::sleep_for(60s);
    const double hostWakeUps = allWakeUpsBetween(hostBefore, wakeUpsOfAll(hosts));
    const double conkyWakeUps = allWakeUpsBetween(conkyBefore, wakeUpsOfAll(conkys));
    const Memory host = memoryOfAll(hosts);
    const Memory conky = memoryOfAll(conkys);
    const char* const peer = "conky, three text windows";
    const std::string what = "host at rest, three widgets: ";
    return {
        {what + "resident memory", "MiB", host.residentMiB, peer, conky.residentMiB, Target{.most = 1.2}},
        {what + "proportional memory", "MiB", host.proportionalMiB, peer, conky.proportionalMiB,
            Target{.most = 1.2}},
        {what + "wake-ups in 60 s", "", hostWakeUps, peer, conkyWakeUps, Target{.most = 0, .isRatio = false}},
    };
}

} // namespace skyvane::bench
