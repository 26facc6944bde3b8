#pragma once

#include "host/extension_client.h"
#include "tests/support/scratch_folder.h"

#include <filesystem>
#include <string>

namespace skyvane::test {

/// The fake extension under the name of one of its behaviours.
class FakeExtension {
public:
    explicit FakeExtension(const std::string& behaviour) : m_program{.path = m_folder.path() / behaviour}
    {
        std::filesystem::create_symlink(SKYVANE_FAKE_EXTENSION, m_program.path);
    }

    const ExtensionProgram& program() const { return m_program; }

    /// Gives up at once where a user would have to wait.
    ExtensionProgram impatient() const
    {
        return {.path = m_program.path, .timeout = std::chrono::milliseconds{200}};
    }

private:
    ScratchFolder m_folder;
    ExtensionProgram m_program;
};

} // namespace skyvane::test
