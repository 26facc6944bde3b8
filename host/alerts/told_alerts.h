#pragma once

#include "platform/clock.h"

#include <chrono>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace skyvane {

/// Remembers which alerts were told lately, from one start of the host to the next.
class ToldAlerts {
public:
    static constexpr std::chrono::minutes memory{30};
    static constexpr std::size_t most = 5'000; ///< Remembered at once; further ones are not.

    explicit ToldAlerts(std::filesystem::path file) : m_file(std::move(file)) { }

    /// Below the user's folder for what programs remember.
    static std::filesystem::path standardPath();

    bool has(const std::string& id, Date now);

    /// Written at once, all or nothing; a failure is a line in the journal.
    void add(const std::vector<std::string>& ids, Date now);

private:
    std::map<std::string, Date>& told();
    void forgetOld(Date now);
    void write() const;

    std::filesystem::path m_file;
    std::optional<std::map<std::string, Date>> m_told; ///< Absent until the file is read, on first need.
};

} // namespace skyvane
