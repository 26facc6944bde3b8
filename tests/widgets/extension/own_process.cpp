#include "tests/widgets/extension/own_process.h"
#include "tests/support/namespaces.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/surroundings.h"
#include "tests/widgets/extension/surroundings.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace skyvane::test {

namespace {

constexpr std::uint16_t httpsPort = 443;

/// Machine-wide files of this test program alone: what it looks up by name is on this machine.
class OwnMachine : public testing::Environment {
public:
    static const std::filesystem::path& folder() { return instance().m_scratch->path(); }

    static OwnMachine& instance()
    {
        static auto* const machine = new OwnMachine; // Owned by the test framework.
        return *machine;
    }

    void SetUp() override
    {
        m_scratch.emplace();
        const std::string user = std::to_string(getuid()) + ":" + std::to_string(getgid());
        bind("/etc/passwd", "tester:x:" + user + "::" + (folder() / "home").string() + ":/bin/sh\n");
        bind("/etc/hosts", "127.0.0.1 localhost api.adsb.lol opendata.adsb.fi\n");
        bind("/etc/nsswitch.conf", "passwd: files\nhosts: files dns\n");
        if (std::filesystem::exists("/etc/resolv.conf")) // Else there is the same to ask.
            bind("/etc/resolv.conf", "nameserver 127.0.0.1\n");
        std::filesystem::create_directory(certificates());
        m_files.push_back({.path = "/etc/ssl/certs", .standIn = certificates()});
        enterOwnNamespaces(m_files);
    }

    void TearDown() override { m_scratch.reset(); }

    static std::filesystem::path certificates() { return folder() / "certs"; }

private:
    static std::filesystem::path standIn(const std::filesystem::path& file)
    {
        return folder() / file.filename();
    }
    void bind(const std::filesystem::path& file, const std::string& content)
    {
        std::ofstream{standIn(file)} << content;
        m_files.push_back({.path = file, .standIn = standIn(file)});
    }

    std::optional<ScratchFolder> m_scratch;
    std::vector<BoundFile> m_files;
};

/// The built program, in a process of its own.
class OwnProcess : public Stage::Surroundings {
public:
    OwnProcess()
    {
        std::filesystem::create_directory(homeFolder());
        if (pipe2(m_errors.data(), O_CLOEXEC | O_NONBLOCK) != 0)
            throw std::runtime_error("no pipe");
    }
    ~OwnProcess() override
    {
        if (m_process && !exitStatus(std::chrono::seconds{2})) {
            kill(*m_process, SIGKILL);
            exitStatus(std::chrono::seconds{2});
        }
        expectNoRefusal();
        close(m_errors[0]);
        close(m_errors[1]);
        std::filesystem::remove_all(homeFolder());
    }

    std::filesystem::path authorityFile() const override
    {
        return OwnMachine::certificates() / "ca-certificates.crt";
    }
    std::filesystem::path homeFolder() const override { return OwnMachine::folder() / "home"; }
    std::uint16_t serverPort() const override { return httpsPort; }

    void start(const HttpsServer&, int input, int output) override
    {
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, input, STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions, m_errors[1], STDERR_FILENO);
        std::string program = SKYVANE_WIDGETS_PROGRAM;
        const std::array<char*, 2> arguments{program.data(), nullptr};
        // Nothing of this one's; a sanitizer is to keep little of what was freed, so that memory can be
        // measured.
        std::string sanitizer = "ASAN_OPTIONS=quarantine_size_mb=8:allocator_release_to_os_interval_ms=100";
        std::vector<std::string> variables = ProgramEnvironment::current().variables;
        std::vector<char*> environment{sanitizer.data()};
        for (std::string& variable : variables)
            environment.push_back(variable.data());
        environment.push_back(nullptr);
        int error = 0;
        pid_t process = -1;
        std::thread{[&] {
            if (const auto& prepare = ProgramEnvironment::current().prepare)
                prepare();
            error = posix_spawn(
                &process, program.c_str(), &actions, nullptr, arguments.data(), environment.data());
        }}.join();
        if (error != 0)
            throw std::runtime_error("cannot start " + program);
        m_process = process;
        posix_spawn_file_actions_destroy(&actions);
        close(input);
        close(output);
    }

    std::optional<int> exitStatus(std::chrono::milliseconds within) override
    {
        if (m_exitStatus || !m_process)
            return m_exitStatus;
        const int handle = static_cast<int>(syscall(SYS_pidfd_open, *m_process, 0));
        pollfd process{.fd = handle, .events = POLLIN, .revents = 0};
        const bool hasEnded = poll(&process, 1, static_cast<int>(within.count())) > 0;
        close(handle);
        int status = 0;
        if (hasEnded && waitpid(*m_process, &status, 0) == *m_process)
            m_exitStatus = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
        return m_exitStatus;
    }

private:
    /// The program that tells of system calls which its confinement refused has told of none; what else
    /// stands in standard error, such as a sanitizer's report, is for people.
    void expectNoRefusal() const
    {
        std::string errors;
        std::array<char, 4096> bytes;
        for (ssize_t count; (count = read(m_errors[0], bytes.data(), bytes.size())) > 0;)
            errors.append(bytes.data(), static_cast<std::size_t>(count));
        EXPECT_EQ(errors.find("refused system call"), std::string::npos) << errors;
        if (!errors.empty())
            std::cerr << errors;
    }

    std::array<int, 2> m_errors{-1, -1}; ///< A pipe for standard error.
    std::optional<pid_t> m_process; ///< Absent where it could not be started.
    std::optional<int> m_exitStatus;
};

} // namespace

std::unique_ptr<Stage::Surroundings> Stage::Surroundings::make()
{
    return std::make_unique<OwnProcess>();
}

} // namespace skyvane::test

int main(int argumentCount, char** arguments)
{
    skyvane::test::enterOwnSurroundings();
    testing::InitGoogleTest(&argumentCount, arguments);
    std::signal(SIGPIPE, SIG_IGN);
    testing::AddGlobalTestEnvironment(&skyvane::test::OwnMachine::instance());
    return RUN_ALL_TESTS();
}
