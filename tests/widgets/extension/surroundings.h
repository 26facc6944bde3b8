#pragma once

#include "tests/widgets/extension/stage.h"

#include <cstdint>
#include <filesystem>

namespace skyvane::test {

/// Where the extension of a stage runs. Defined once in each test program.
struct Stage::Surroundings {
    virtual ~Surroundings() = default;

    virtual std::filesystem::path authorityFile() const = 0;
    virtual std::filesystem::path homeFolder() const = 0;
    virtual std::uint16_t serverPort() const = 0;

    /// Starts the extension on its ends of the streams, which it closes.
    virtual void start(const HttpsServer& server, int input, int output) = 0;
    virtual std::optional<int> exitStatus(std::chrono::milliseconds within) = 0;

    static std::unique_ptr<Surroundings> make();
};

} // namespace skyvane::test
