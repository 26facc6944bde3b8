#pragma once

#include "tests/support/https_server.h"
#include "tests/support/namespaces.h"
#include "tests/support/scratch_folder.h"

#include <memory>
#include <string>
#include <vector>

namespace skyvane::bench {

/// A network of this process's own in which both aggregators are one local HTTPS server, which answers with
/// 1,000 aircraft, and a home folder with a configuration. The server's authority is one more among the
/// system's. Also for children. To be made before any thread.
class OwnWorld {
public:
    OwnWorld();

private:
    void bind(const std::string& file, const std::string& content);

    test::ScratchFolder m_folder;
    std::vector<test::BoundFile> m_files;
    std::unique_ptr<test::HttpsServer> m_server;
};

} // namespace skyvane::bench
