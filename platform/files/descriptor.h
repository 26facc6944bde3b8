#pragma once

#include <unistd.h>

#include <cerrno>
#include <string_view>
#include <utility>

namespace skyvane::Files {

/// Owns an open file or socket, which is closed with it; below zero where opening failed.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int number) : m_number(number) { }
    Descriptor(Descriptor&& other) noexcept : m_number(other.release()) { }
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~Descriptor() { close(); }

    int number() const { return m_number; }
    bool isOpen() const { return m_number >= 0; }
    /// Whose it is from then on.
    int release() { return std::exchange(m_number, -1); }
    bool close() { return m_number < 0 || ::close(release()) == 0; }

private:
    int m_number = -1;
};

/// Whether all of it went out.
inline bool writeAll(int descriptor, std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

} // namespace skyvane::Files
