#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <utility>

namespace skyvane {

/// Rate limiter over all programs of one user: one of them at a time has the turn, and there is a rest after
/// each. A lock on a file in the user's folder for what runs; the file's time says when the last turn ended.
class SharedTurn {
public:
    /// Where this user's programs meet; empty where the system has no such folder.
    static std::filesystem::path file();

    /// Absent while another program has the turn, or the rest after one is not over. Where nobody can meet,
    /// everybody has it.
    static std::optional<SharedTurn> take(const std::filesystem::path& file, std::chrono::milliseconds rest);

    ~SharedTurn();
    SharedTurn(SharedTurn&& other) noexcept : m_file(std::exchange(other.m_file, -1)) { }
    SharedTurn& operator=(SharedTurn&& other) noexcept
    {
        std::swap(m_file, other.m_file);
        return *this;
    }

private:
    explicit SharedTurn(int file) : m_file(file) { }

    int m_file; ///< Descriptor of the locked file; -1 for a turn without one.
};

} // namespace skyvane
