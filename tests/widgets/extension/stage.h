#pragma once

#include "tests/support/https_server.h"

#include <nlohmann/json.hpp>

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace skyvane::test {

/// The extension with a world of its own around it: a home folder, a server in place of both aggregators, and
/// the host's end of its streams. Each test program defines what surrounds it: the test's own process, or one
/// of its own.
class Stage {
public:
    struct Surroundings;

    Stage();
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    HttpsServer& server() { return m_server; }
    const CertificateAuthority& authority() const { return m_authority; }

    void setConfiguration(std::string_view text);

    void sayLine(std::string_view line);
    /// A request, with `params` unless they are null.
    void ask(const nlohmann::json& id, std::string_view method, const nlohmann::json& params = nullptr);
    void cancel(const nlohmann::json& id);
    void closeInput();
    void closeOutput();

    /// The next answer; null when there is none within that time.
    nlohmann::json hear(std::chrono::milliseconds patience = std::chrono::seconds{12});

    /// The same as it came, without the line break; empty when there is none.
    std::string hearLine(std::chrono::milliseconds patience = std::chrono::seconds{12});

    /// What the extension ended with; absent while it runs on for longer than that.
    std::optional<int> exitStatus(std::chrono::milliseconds within);

private:
    std::unique_ptr<Surroundings> m_surroundings;
    CertificateAuthority m_authority;
    HttpsServer m_server;
    std::string m_heard;
    int m_input = -1;
    int m_output = -1;
};

} // namespace skyvane::test
