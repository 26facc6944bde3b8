// Runs one program, says one line to it when there is one, and prints what it took: milliseconds to its first
// line, milliseconds of CPU to its end, peak memory in KiB. A program of its own, because the system counts
// the memory of whoever starts a program as that program's.

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

using Clock = std::chrono::steady_clock;

double milliseconds(Clock::duration duration)
{
    return std::chrono::duration<double, std::milli>(duration).count();
}

double milliseconds(const timeval& time)
{
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
}

struct Streams {
    int input;
    int output;
};

[[noreturn]] void become(char* words[], const Streams& streams)
{
    dup2(streams.input, STDIN_FILENO);
    dup2(streams.output, STDOUT_FILENO);
    execvp(words[0], words);
    std::perror(words[0]);
    _exit(127);
}

/// Reads to the end of the output; the first line, after which the input is closed, came at the time
/// returned.
Clock::time_point hear(int output, int input)
{
    auto first = Clock::time_point::max();
    std::array<char, 65536> bytes{};
    ssize_t count = 0;
    while ((count = read(output, bytes.data(), bytes.size())) > 0) {
        if (first != Clock::time_point::max()
            || !std::memchr(bytes.data(), '\n', static_cast<std::size_t>(count)))
            continue;
        first = Clock::now();
        close(input);
    }
    return std::min(first, Clock::now());
}

} // namespace

int main(int argumentCount, char* arguments[])
{
    std::array<int, 2> input{};
    std::array<int, 2> output{};
    if (argumentCount < 3 || pipe2(input.data(), O_CLOEXEC) != 0 || pipe2(output.data(), O_CLOEXEC) != 0)
        return 2;
    const auto start = Clock::now();
    const pid_t child = fork();
    if (child == 0)
        become(arguments + 2, {.input = input[0], .output = output[1]});
    close(input[0]);
    close(output[1]);
    const std::size_t length = std::strlen(arguments[1]);
    if (write(input[1], arguments[1], length) != static_cast<ssize_t>(length))
        return 1;
    const auto first = hear(output[0], input[1]);
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    std::printf("%.3f %.3f %ld\n", milliseconds(first - start),
        milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime), usage.ru_maxrss);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1;
}
