#include "platform/files/files.h"
#include "platform/net/url_session.h"
#include "platform/pinned.h"
#include "tests/support/scratch_folder.h"
#include "tests/widgets/extension/surroundings.h"
#include "widgets/extension/serve.h"

#include <unistd.h>

#include <csignal>
#include <future>

namespace skyvane::test {

namespace {

/// A thread of the test's own process, which sees the stage's home folder and server in place of the real
/// ones.
class ThreadOfTheTest : public Stage::Surroundings {
public:
    ThreadOfTheTest() { std::signal(SIGPIPE, SIG_IGN); }

    std::filesystem::path authorityFile() const override { return m_scratch.path() / "authority.pem"; }
    std::filesystem::path homeFolder() const override { return m_scratch.path() / "home"; }
    std::uint16_t serverPort() const override { return 0; }

    void start(const HttpsServer& server, int input, int output) override
    {
        m_network.emplace(server.network());
        m_status = std::async(std::launch::async, [input, output] {
            Extension::serve(input, output, {.transport = UrlSession{}});
            close(input);
            close(output);
            return 0;
        });
    }

    std::optional<int> exitStatus(std::chrono::milliseconds within) override
    {
        if (m_status.wait_for(within) != std::future_status::ready)
            return std::nullopt;
        return m_status.get();
    }

private:
    ScratchFolder m_scratch;
    Pinned<HomeFolder> m_home{{.path = homeFolder()}};
    std::optional<Pinned<Network>> m_network;
    std::future<int> m_status;
};

} // namespace

std::unique_ptr<Stage::Surroundings> Stage::Surroundings::make()
{
    return std::make_unique<ThreadOfTheTest>();
}

} // namespace skyvane::test
