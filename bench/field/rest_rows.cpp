#include "bench/field/desktop_session.h"
#include "bench/field/rows.h"
#include "bench/field/watched_program.h"
#include "tests/session/wait_for.h"

#include <QSize>

#include <chrono>
#include <fstream>
#include <list>
#include <stdexcept>
#include <thread>

namespace skyvane::bench {

namespace {

using namespace std::chrono_literals;

constexpr auto watched = 60s;

QString named(const std::filesystem::path& program)
{
    return QString::fromStdString(program.string());
}

/// A window of this size with a dozen lines of text that it looks at again after five minutes.
void writeConkyConfiguration(const std::filesystem::path& file, QSize size, int top)
{
    std::ofstream stream{file};
    stream << "conky.config = { own_window = true, own_window_type = 'desktop', double_buffer = true,\n"
              "use_xft = true, font = 'DejaVu Sans Mono:size=9', update_interval = 300,\n"
              "alignment = 'top_left', gap_x = 20, gap_y = "
           << top << ", minimum_width = " << size.width() << ", maximum_width = " << size.width()
           << ", minimum_height = " << size.height() << " }\nconky.text = [[\n";
    for (int line = 0; line < 12; ++line)
        stream << "AIRCRAFT " << line << "  12.5 km  FL350\n";
    stream << "]]\n";
}

/// The host with its three widgets, and three windows of conky's of the same sizes, on one desktop.
class RestingDesktop {
public:
    RestingDesktop(const Programs& programs, Setting setting)
        : m_session(setting), m_host(m_session, named(programs.host))
    {
        int top = 20;
        for (const QSize size : {QSize{170, 170}, QSize{364, 170}, QSize{364, 382}}) {
            const std::filesystem::path file = m_folder.path() / std::to_string(top);
            writeConkyConfiguration(file, size, top);
            m_conkys.emplace_back(m_session, "conky", QStringList{"-c", named(file)});
            top += size.height() + 20;
        }
    }

    /// Until all timelines have come, the extension has ended, and so have the threads that the toolkit
    /// painted with.
    void waitForRest() const
    {
        if (!test::waitFor([&] { return hasChildren(m_host.id()); }, 20s)
            || !test::waitFor([&] { return !hasChildren(m_host.id()); }, 60s))
            throw std::runtime_error{"the host does not come to rest"};
        std::this_thread::sleep_for(35s);
    }

    Rows rows(const std::string& end)
    {
        countWakeUps();
        const Memory host = memoryOf(m_host.id());
        Memory conky{};
        for (const WatchedProgram& program : m_conkys) {
            const Memory memory = memoryOf(program.id());
            conky.residentMiB += memory.residentMiB;
            conky.proportionalMiB += memory.proportionalMiB;
        }
        std::this_thread::sleep_for(watched);
        const auto [hostWakeUps, conkyWakeUps] = countWakeUps();
        const std::string what = "host at rest, three widgets: ";
        const char* const peer = "conky's three windows";
        return {
            {what + "resident" + end, "MiB", host.residentMiB, peer, conky.residentMiB, Target{.most = 0.8}},
            {what + "proportional" + end, "MiB", host.proportionalMiB, peer, conky.proportionalMiB,
                Target{.most = 1}},
            {what + "wake-ups in 60 s" + end, "", hostWakeUps, peer, conkyWakeUps,
                Target{.most = 0, .isRatio = false}},
        };
    }

private:
    /// Of the host and of conky, since the last time.
    std::pair<double, double> countWakeUps()
    {
        std::uint64_t conkys = 0;
        for (WatchedProgram& program : m_conkys)
            conkys += program.wakeUps();
        return {static_cast<double>(m_host.wakeUps()), static_cast<double>(conkys)};
    }

    test::ScratchFolder m_folder;
    DesktopSession m_session;
    WatchedProgram m_host;
    std::list<WatchedProgram> m_conkys;
};

} // namespace

Rows hostRestRows(const Programs& programs)
{
    Rows rows;
    for (const Setting setting : settings) {
        RestingDesktop desktop{programs, setting};
        desktop.waitForRest();
        for (Row& row : desktop.rows(suffix(setting)))
            rows.push_back(std::move(row));
    }
    return rows;
}

Rows companionRestRows(const Programs& programs, const OwnWorld& world)
{
    const DesktopSession session{Setting::plain};
    const double before = world.traffic().requests;
    WatchedProgram companion{session, named(programs.companion)};
    WatchedProgram window{session, named(programs.emptyWindow), {"1120", "720"}};
    if (!test::waitFor([&] { return world.traffic().requests > before; }))
        throw std::runtime_error{"the companion asks for no sky"};
    const double asked = world.traffic().requests;
    std::this_thread::sleep_for(10s);
    companion.wakeUps();
    window.wakeUps();
    const Memory memory = memoryOf(companion.id());
    const Memory windowMemory = memoryOf(window.id());
    std::this_thread::sleep_for(45s); // It asks again a minute after the first time.
    const auto wakeUps = static_cast<double>(companion.wakeUps());
    if (world.traffic().requests != asked)
        throw std::runtime_error{"the companion asks for the sky too early"};
    const std::string what = "companion at rest on the sky page: ";
    const char* const peer = "an empty Qt window";
    return {
        {what + "wake-ups in 45 s between its refreshes", "", wakeUps, peer,
            static_cast<double>(window.wakeUps()), Target{.most = 0, .isRatio = false}},
        {what + "resident", "MiB", memory.residentMiB, peer, windowMemory.residentMiB},
    };
}

} // namespace skyvane::bench
