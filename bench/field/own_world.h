#pragma once

#include "tests/support/https_server.h"
#include "tests/support/namespaces.h"
#include "tests/support/scratch_folder.h"

#include <atomic>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace skyvane::bench {

/// What the feed was asked and has answered.
struct Traffic {
    double requests;
    double bytes; ///< Of answers, head and body, TLS left out.
};

/// A network of this process's own in which both aggregators are one local HTTPS server, which answers with
/// 700 aircraft, and a home folder with a configuration. The server's authority is one more among the
/// system's. Also for children. To be made before any thread.
class OwnWorld {
public:
    OwnWorld();

    /// Since the beginning.
    Traffic traffic() const;

private:
    void bind(const std::string& file, const std::string& content);

    test::ScratchFolder m_folder;
    std::vector<test::BoundFile> m_files;
    std::atomic<std::size_t> m_requests{0};
    std::size_t m_answerSize = 0; ///< Bytes.
    std::unique_ptr<test::HttpsServer> m_server;
};

} // namespace skyvane::bench
