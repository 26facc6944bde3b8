#pragma once

#include "platform/net/url_session.h"
#include "platform/pinned.h"
#include "tests/support/certificate_authority.h"
#include "tests/support/https_server.h"
#include "tests/support/scratch_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

namespace skyvane::test {

using namespace std::chrono_literals;
using testing::HasSubstr;

inline constexpr std::size_t mebibyte = std::size_t{1} << 20;

/// One server that stands for example.test and other.test, and the words that the tests speak of it in.
class UrlSessionTest : public testing::Test {
protected:
    static URLRequest request(const std::string& text)
    {
        return {.url = URL::parse(text).value(), .timeout = 5s};
    }
    static URLRequest request() { return request("https://example.test/"); }

    URLResponse get(const URLRequest& wanted = request()) const { return session(wanted, {}); }

    /// What the library said of the transfer's failure; empty when it did not fail.
    std::string failure(const URLRequest& wanted = request()) const
    {
        try {
            get(wanted);
        } catch (const TransferError& error) {
            return error.details;
        }
        return {};
    }

    /// Why the transfer failed.
    std::optional<TransferProblem> problem(const URLRequest& wanted = request()) const
    {
        try {
            get(wanted);
        } catch (const TransferError& error) {
            return error.problem;
        }
        return std::nullopt;
    }

    UrlSession session;
    ScratchFolder scratch;
    CertificateAuthority authority{scratch.path() / "authority.pem"};
    HttpsServer server{authority, {"example.test", "other.test"}};
    Pinned<Network> network{server.network()};
};

} // namespace skyvane::test
