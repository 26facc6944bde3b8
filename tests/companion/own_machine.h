#pragma once

#include "tests/support/namespaces.h"
#include "tests/support/scratch_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <vector>

namespace skyvane::test {

/// A machine of this test program's own: a network on which all of the sources are this process, and a home
/// folder.
class OwnMachine : public testing::Environment {
public:
    static OwnMachine& instance();

    /// For the certificate of the authority that programs are to trust.
    std::filesystem::path authorityFile() const { return standIn("ca-certificates.crt"); }
    std::filesystem::path home() const { return m_scratch->path() / "home"; }

    void SetUp() override;
    void TearDown() override { m_scratch.reset(); }

private:
    std::filesystem::path standIn(const std::filesystem::path& file) const
    {
        return m_scratch->path() / file.filename();
    }
    void bind(const std::filesystem::path& file, const std::string& content);

    std::optional<ScratchFolder> m_scratch;
    std::vector<BoundFile> m_files;
};

} // namespace skyvane::test
