#include <gtest/gtest.h>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <string>

namespace skyvane::test {

TEST(ExtensionProgram, takesNoArguments)
{
    std::array<int, 2> ends;
    ASSERT_EQ(pipe2(ends.data(), O_CLOEXEC), 0);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
    std::string program = SKYVANE_WIDGETS_PROGRAM;
    std::string argument = "--help";
    const std::array<char*, 3> arguments{program.data(), argument.data(), nullptr};
    const std::array<char*, 1> environment{nullptr};
    pid_t process = -1;
    ASSERT_EQ(
        posix_spawn(&process, program.c_str(), &actions, nullptr, arguments.data(), environment.data()), 0);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);

    std::string words;
    std::array<char, 256> bytes;
    for (ssize_t count; (count = read(ends[0], bytes.data(), bytes.size())) > 0;)
        words.append(bytes.data(), static_cast<std::size_t>(count));
    close(ends[0]);
    int status = 0;
    ASSERT_EQ(waitpid(process, &status, 0), process);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 2);
    EXPECT_EQ(words, "skyvane-widgets: takes no arguments; it is started by a widget host\n");
}

} // namespace skyvane::test
