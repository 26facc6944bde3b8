#pragma once

#include "host/extension/program.h"
#include "tests/support/scratch_folder.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace skyvane::test {

/// The fake extension under the name of one of its behaviours.
class FakeExtension {
public:
    /// One that stays silent is given up soon, every other has its time however busy the machine is.
    explicit FakeExtension(const std::string& behaviour) : m_program{.path = m_folder.path() / behaviour}
    {
        if (behaviour == "silent")
            m_program.timeout = std::chrono::milliseconds{200};
        std::filesystem::create_symlink(SKYVANE_FAKE_EXTENSION, m_program.path);
    }

    const ExtensionProgram& program() const { return m_program; }

    struct Event {
        std::chrono::milliseconds at; ///< By the steady clock.
        std::string what; ///< "start", "end" or the request.
    };

    /// What happened so far that holds this text.
    std::vector<Event> events(std::string_view part) const
    {
        std::ifstream log{m_program.path.string() + ".log"};
        std::vector<Event> found;
        std::chrono::milliseconds::rep at = 0;
        for (std::string what; log >> at && log.get() && std::getline(log, what);) {
            if (what.find(part) != std::string::npos)
                found.push_back({.at = std::chrono::milliseconds{at}, .what = what});
        }
        return found;
    }

private:
    ScratchFolder m_folder;
    ExtensionProgram m_program;
};

} // namespace skyvane::test
