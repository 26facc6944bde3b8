#include "tests/support/fault_server.h"
#include "tests/support/process_status.h"
#include "tests/support/service_hosts.h"
#include "tests/widgets/extension/scenario.h"

#include <poll.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <fstream>
#include <iostream>
#include <random>
#include <string>
#include <vector>

namespace skyvane::test {

namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;

struct Measure {
    std::size_t residentKiB;
    std::size_t descriptors;
    std::size_t threads;
};

/// As the command line has it, "--refreshes=1000"; else so many as take a few seconds.
int refreshCount()
{
    constexpr int few = 12;
    const std::string option = "--refreshes=";
    std::ifstream commandLine{"/proc/self/cmdline"};
    for (std::string word; std::getline(commandLine, word, '\0');) {
        if (word.starts_with(option))
            return std::stoi(word.substr(option.size()));
    }
    return few;
}

/// An answer that shows the good answer's aircraft.
bool showsAircraft(const json& answer)
{
    const std::string text = answer.dump();
    return text.find("GOOD1") != std::string::npos || text.find("abc001") != std::string::npos;
}

class Soak : public ExtensionScenario {
protected:
    Soak()
    {
        setHome();
        expectStillAnswers();
        process = ProcessStatus::children().at(0);
        idleThreads = ProcessStatus::number(process, "Threads");
    }

    void goWrong(const Fault& fault)
    {
        for (const std::string& host : test::feedHosts())
            test::goWrong(stage.server(), stage.authority(), host, fault);
    }

    /// All three widgets at once.
    void refresh(const Fault& fault)
    {
        SCOPED_TRACE(fault.name);
        goWrong(fault);
        stage.ask("refresh", "widgets.timelines", {{"widgets", allThree}});
        if (fault.isSlow) // The patience for these has a test of its own.
            stage.cancel("refresh");
        expectAsTheFaultSays(fault, stage.hear(60s));
    }

    /// One for all three.
    void refreshWell()
    {
        const std::size_t before = stage.server().requests().size();
        refresh(nothingWrong);
        EXPECT_EQ(stage.server().requests().size(), before + 1);
    }

    static void expectAsTheFaultSays(const Fault& fault, const json& answer)
    {
        ASSERT_TRUE(answer.is_object());
        if (fault.isSlow) {
            EXPECT_EQ(answer["error"]["code"], -32800);
        } else if (answer.contains("error")) {
            EXPECT_EQ(fault.name, "identityOfAMegabyte"); // No answer may be so long.
        } else {
            EXPECT_EQ(showsAircraft(answer), fault.outcome == Fault::Outcome::delivered);
        }
    }

    /// For a second in which nobody asks anything.
    std::size_t wakeUpsWhenIdle() const
    {
        const std::size_t before = wakeUps();
        poll(nullptr, 0, 1000);
        return wakeUps() - before;
    }

    /// Once the threads of the last answers have ended.
    Measure measure() const
    {
        const auto deadline = steady_clock::now() + 20s;
        while (ProcessStatus::number(process, "Threads") > idleThreads && steady_clock::now() < deadline)
            poll(nullptr, 0, 5);
        return {.residentKiB = ProcessStatus::number(process, "VmRSS"),
            .descriptors = ProcessStatus::openDescriptors(process),
            .threads = ProcessStatus::number(process, "Threads")};
    }

    std::size_t wakeUps() const
    {
        return ProcessStatus::number(process, "voluntary_ctxt_switches")
            + ProcessStatus::number(process, "nonvoluntary_ctxt_switches");
    }

    const Fault nothingWrong{.name = "nothingWrong",
        .handler
        = [](const RecordedRequest&, Connection& connection) { connection.answer({.body = goodAnswer}); },
        .outcome = Fault::Outcome::delivered};
    pid_t process = -1;
    std::size_t idleThreads = 0;
};

} // namespace

TEST_F(Soak, refreshesThroughEveryFaultAreFollowedByGoodOnesAndLeaveNothingBehind)
{
    const std::vector<Fault> all = faults();
    std::mt19937 random{7};
    refreshWell();
    const Measure before = measure();
    std::array<std::size_t, 2> mostKiBInHalf{};
    const int count = refreshCount();
    for (int done = 0; done < count; done += 2) {
        refresh(all[random() % all.size()]);
        refreshWell();
        ASSERT_FALSE(HasFailure());
        auto& most = mostKiBInHalf.at(done < count / 2 ? 0 : 1);
        most = std::max(most, measure().residentKiB);
    }
    const Measure after = measure();
    std::cout << count << " refreshes: resident " << before.residentKiB << " KiB before, at most "
              << mostKiBInHalf[0] << " in the first half and " << mostKiBInHalf[1] << " in the second, "
              << after.residentKiB << " after; descriptors " << before.descriptors << " and "
              << after.descriptors << "; threads " << before.threads << " and " << after.threads << '\n';
    EXPECT_EQ(after.descriptors, before.descriptors);
    EXPECT_EQ(after.threads, before.threads);
    constexpr std::size_t keptBySanitizersKiB = 192 << 10;
    EXPECT_LT(mostKiBInHalf[1], mostKiBInHalf[0] + keptBySanitizersKiB);
    EXPECT_EQ(wakeUpsWhenIdle(), 0U);
    stage.closeInput();
    EXPECT_EQ(stage.exitStatus(10s), 0);
    EXPECT_TRUE(ProcessStatus::children().empty());
}

} // namespace skyvane::test
