#pragma once

#include <unistd.h>

#include <utility>

namespace skyvane::Files {

/// Owns an open file or socket, which is closed with it; below zero where opening failed.
class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) { }
    ~Descriptor() { close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int number() const { return m_number; }
    bool isOpen() const { return m_number >= 0; }
    bool close() { return m_number < 0 || ::close(std::exchange(m_number, -1)) == 0; }

private:
    int m_number;
};

} // namespace skyvane::Files
