#include "companion/photo/child.h"

#include "companion/photo/answer.h"
#include "companion/photo/limits.h"
#include "platform/files/descriptor.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <string>

namespace skyvane {

namespace {

using Clock = std::chrono::steady_clock;
using Files::Descriptor;

constexpr std::chrono::seconds longestWait{10}; // Of a machine that has other things to do.

/// How a child begins: with the socket as its input and output, and as if nobody had started it.
class Beginning {
public:
    explicit Beginning(int socket)
    {
        posix_spawn_file_actions_init(&m_files);
        posix_spawn_file_actions_adddup2(&m_files, socket, STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&m_files, socket, STDOUT_FILENO);
        posix_spawn_file_actions_addopen(&m_files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_addclosefrom_np(&m_files, STDERR_FILENO + 1);
        sigset_t chosen;
        posix_spawnattr_init(&m_attributes);
        sigemptyset(&chosen);
        posix_spawnattr_setsigmask(&m_attributes, &chosen);
        sigfillset(&chosen);
        posix_spawnattr_setsigdefault(&m_attributes, &chosen);
        posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    ~Beginning()
    {
        posix_spawnattr_destroy(&m_attributes);
        posix_spawn_file_actions_destroy(&m_files);
    }
    Beginning(const Beginning&) = delete;
    Beginning& operator=(const Beginning&) = delete;

    std::optional<pid_t> start(const std::filesystem::path& program) const
    {
        std::string name = program.filename();
        const std::array<char*, 2> words{name.data(), nullptr};
        const std::array<char*, 1> environment{nullptr};
        pid_t process = 0;
        const int error = posix_spawn(
            &process, program.c_str(), &m_files, &m_attributes, words.data(), environment.data());
        return error == 0 ? std::optional{process} : std::nullopt;
    }

private:
    posix_spawn_file_actions_t m_files;
    posix_spawnattr_t m_attributes;
};

/// Does not outlive the scope, whatever it is at.
class Child {
public:
    explicit Child(pid_t process) : m_process(process) { }
    ~Child()
    {
        end();
        while (waitpid(m_process, nullptr, 0) < 0 && errno == EINTR) { }
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    void end() const { kill(m_process, SIGKILL); }

private:
    pid_t m_process;
};

/// False once the time is over.
bool waitFor(int socket, short event, Clock::time_point end)
{
    while (true) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
        pollfd awaited{.fd = socket, .events = event, .revents = 0};
        const int count = poll(&awaited, 1, static_cast<int>(std::max<std::int64_t>(left.count(), 0)));
        if (count >= 0 || errno != EINTR)
            return count > 0;
    }
}

bool send(int socket, std::string_view bytes, Clock::time_point end)
{
    while (!bytes.empty()) {
        if (!waitFor(socket, POLLOUT, end))
            return false;
        const ssize_t sent = ::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
        if (sent < 0 && errno != EINTR && errno != EAGAIN)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(sent, 0)));
    }
    return shutdown(socket, SHUT_WR) == 0;
}

/// All that comes until the other end is closed; absent where that is more than any answer.
std::optional<std::string> received(int socket, Clock::time_point end)
{
    std::string bytes(PhotoAnswer::largest + 1, '\0');
    std::size_t length = 0;
    while (length < bytes.size()) {
        if (!waitFor(socket, POLLIN, end))
            return std::nullopt;
        const ssize_t got = recv(socket, bytes.data() + length, bytes.size() - length, MSG_DONTWAIT);
        if (got == 0) {
            bytes.resize(length);
            return bytes;
        }
        if (got < 0 && errno != EINTR && errno != EAGAIN)
            return std::nullopt;
        length += static_cast<std::size_t>(std::max<ssize_t>(got, 0));
    }
    return std::nullopt;
}

} // namespace

std::optional<Pixels> decodedInChild(
    const std::filesystem::path& program, std::string_view file, const std::stop_token& stop)
{
    std::array<int, 2> ends{-1, -1};
    if (file.size() > PhotoFile::largest || stop.stop_requested()
        || socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return std::nullopt;
    const Descriptor own{ends[0]};
    Descriptor other{ends[1]};
    const auto process = Beginning{other.number()}.start(program);
    other.close();
    if (!process)
        return std::nullopt;
    const Child child{*process};
    const std::stop_callback ending{stop, [&] { child.end(); }}; // Gone before the process is waited for.
    const Clock::time_point end = Clock::now() + longestWait;
    if (!send(own.number(), file, end))
        return std::nullopt;
    const auto answer = received(own.number(), end);
    return answer ? PhotoAnswer::decoded(*answer) : std::nullopt;
}

} // namespace skyvane
