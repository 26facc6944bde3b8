#pragma once

#include "host/placing/placed_widget.h"

#include <filesystem>

namespace skyvane {

/// The file that remembers the placed widgets from one session to the next.
class HostFile {
public:
    explicit HostFile(std::filesystem::path file) : m_file(std::move(file)) { }

    /// Below the user's configuration folder.
    static std::filesystem::path standardPath();

    /// Absent on the first start. A file that cannot be understood is set aside under a name that ends in
    /// ".broken", with a line in the journal; then, too, this is a first start. What a killed host left
    /// beside it is removed.
    std::optional<Arrangement> read();

    /// All or nothing. Whether it worked; a failure is a line in the journal, too. A file that could neither
    /// be understood nor set aside stands.
    bool write(const Arrangement& arrangement);

private:
    std::filesystem::path m_file;
    bool m_isUntouchable = false;
};

} // namespace skyvane
