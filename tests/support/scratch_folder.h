#pragma once

#include <filesystem>

namespace skyvane::test {

/// An empty folder of its own, gone with everything in it at the end of the scope.
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

} // namespace skyvane::test
