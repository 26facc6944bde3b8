#include "core/config/shared_state.h"
#include "platform/files/files.h"
#include "platform/pinned.h"
#include "tests/support/scratch_folder.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <functional>
#include <random>
#include <string>

namespace skyvane::test {

namespace {

using namespace std::chrono_literals;
using SharedState::Config;
using std::chrono::steady_clock;

const Config brief{.home = {.latitude = 1, .longitude = 2, .label = "X"}, .radiusNM = 10};
const Config wordy{
    .home = {.latitude = -33.9, .longitude = 151.2, .label = std::string(20'000, 'y')},
    .radiusNM = 250,
    .distanceUnit = "km",
    .widgetColorHex = "#33ff66",
};

/// A process that replaces the file as fast as it can until it is killed.
class Writer {
public:
    Writer() : m_process(fork())
    {
        while (m_process == 0) {
            SharedState::write(wordy);
            SharedState::write(brief);
        }
    }
    ~Writer()
    {
        if (m_process < 0)
            return; // There was no process left to have.
        kill(m_process, SIGKILL);
        waitpid(m_process, nullptr, 0);
    }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

private:
    pid_t m_process;
};

class ConfigurationUnderFire : public testing::Test {
protected:
    void SetUp() override { SharedState::write(brief); }

    static void expectWhole(const std::optional<Config>& config)
    {
        ASSERT_TRUE(config);
        ASSERT_TRUE(*config == brief || *config == wordy) << config->home.label.size();
    }

    /// Absent, and without a wait.
    static void expectNothingThere()
    {
        const auto start = steady_clock::now();
        EXPECT_FALSE(SharedState::read());
        EXPECT_LT(steady_clock::now() - start, 2s);
    }

    ScratchFolder scratch;
    Pinned<HomeFolder> home{{.path = scratch.path()}};
    std::filesystem::path file{SharedState::directory() / "widget-config.json"};
};

} // namespace

TEST_F(ConfigurationUnderFire, twentyThousandReadsBesideAWriterAreAllWhole)
{
    const Writer writer;
    for (int count = 0; count < 20'000; ++count)
        ASSERT_NO_FATAL_FAILURE(expectWhole(SharedState::read()));
}

TEST_F(ConfigurationUnderFire, aWriterKilledAtAnyPointLeavesAWholeFile)
{
    std::mt19937 random{7};
    std::uniform_int_distribution<int> microseconds{0, 3000};
    for (int count = 0; count < 200; ++count) {
        {
            const Writer writer;
            const auto end = steady_clock::now() + std::chrono::microseconds{microseconds(random)};
            while (steady_clock::now() < end)
                expectWhole(SharedState::read());
        }
        ASSERT_NO_FATAL_FAILURE(expectWhole(SharedState::read()));
    }
    SharedState::write(wordy);
    EXPECT_EQ(SharedState::read(), wordy);
}

TEST_F(ConfigurationUnderFire, aFolderInItsPlaceIsNoConfiguration)
{
    std::filesystem::remove(file);
    std::filesystem::create_directory(file);
    expectNothingThere();
}

TEST_F(ConfigurationUnderFire, aPipeInItsPlaceIsNoConfigurationAndNotWaitedFor)
{
    std::filesystem::remove(file);
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    expectNothingThere();
}

TEST_F(ConfigurationUnderFire, aLoopOfLinksIsNoConfiguration)
{
    std::filesystem::remove(file);
    const std::filesystem::path other = file.parent_path() / "other";
    std::filesystem::create_symlink(other, file);
    std::filesystem::create_symlink(file, other);
    expectNothingThere();
}

TEST_F(ConfigurationUnderFire, aGigabyteIsNoConfiguration)
{
    std::filesystem::resize_file(file, 1UL << 30);
    expectNothingThere();
}

TEST_F(ConfigurationUnderFire, whatAnOrdinaryUserMayNotReadIsNoConfiguration)
{
    constexpr uid_t nobody = 65534;
    std::filesystem::permissions(scratch.path(), std::filesystem::perms{0755});
    const auto readInChild = [&] {
        const pid_t child = fork();
        if (child == 0) {
            const bool isOrdinary = getuid() != 0 || setuid(nobody) == 0;
            _exit(!isOrdinary ? 2 : SharedState::read() ? 1 : 0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WEXITSTATUS(status);
    };
    std::filesystem::permissions(file, std::filesystem::perms{0644});
    EXPECT_EQ(readInChild(), 1);
    std::filesystem::permissions(file, std::filesystem::perms{0});
    EXPECT_EQ(readInChild(), 0);
}

} // namespace skyvane::test
