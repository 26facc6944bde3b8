#include "tests/support/scratch_folder.h"
#include "tests/widgets/extension/scenario.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <set>
#include <string>

namespace skyvane::test {

namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;

constexpr int most = 64; ///< Requests at once.

/// A place where a server can leave a request standing.
struct Stall {
    const char* place;
    std::function<void(HttpsServer&)> prepare;
};

void stallInHandshake(HttpsServer& server)
{
    server.greet(&Connection::stall);
}

void stallBeforeHeaders(HttpsServer& server)
{
    server.handle(firstSource, &stalled);
}

void stallInHeaders(HttpsServer& server)
{
    server.handle(firstSource, [](const auto&, Connection& connection) {
        connection.send("HTTP/1.1 200 OK\r\nContent-");
        connection.stall();
    });
}

void stallInBody(HttpsServer& server)
{
    server.handle(firstSource, [](const auto&, Connection& connection) {
        connection.send(head({.headers = {{.name = "Content-Length", .value = "1000000"}}}) + "{\"ac\":[");
        connection.stall();
    });
}

void answer(HttpsServer& server)
{
    server.answer(firstSource, {.body = twoNearHome});
}

/// So many requests at once that the machine has not a processor for each.
class ManyRequests : public ExtensionScenario, public testing::WithParamInterface<Stall> {
protected:
    ManyRequests()
    {
        setHome();
        buryAuthority();
        answer(stage.server());
        const auto start = steady_clock::now();
        timeline();
        aFewRequests = 8 * (steady_clock::now() - start);
        GetParam().prepare(stage.server());
        stage.server().hangUp(); // Nobody is left a connection to use again.
        for (int id = 0; id < most; ++id)
            stage.ask(id, "widgets.timeline", radar);
    }

    /// As on a system that trusts many, where the server's authority stands in the bundle alone: each
    /// handshake is made twice, and reads all of them.
    void buryAuthority() const
    {
        constexpr int others = 140;
        const std::filesystem::path bundle = stage.authority().file();
        for (const auto& entry : std::filesystem::directory_iterator{bundle.parent_path()}) {
            if (entry.is_symlink())
                std::filesystem::remove(entry);
        }
        std::ofstream end{bundle, std::ios::app};
        const ScratchFolder scratch;
        for (int other = 0; other < others; ++other) {
            const CertificateAuthority stranger{scratch.path() / ("stranger" + std::to_string(other))};
            end << std::ifstream{stranger.file()}.rdbuf();
        }
    }

    /// Beside what is promised; a machine that tests on every core is slower, but so it is with a few.
    steady_clock::duration aFewRequests{};
};

} // namespace

TEST_P(ManyRequests, hearTheirCancellationWithinATenthOfASecond)
{
    std::set<int> awaited{0, most / 2, most - 1};
    const auto start = steady_clock::now();
    for (const int id : awaited)
        stage.cancel(id);
    while (!awaited.empty()) {
        const json heard = stage.hear();
        ASSERT_TRUE(heard.is_object());
        awaited.erase(heard["id"].get<int>());
    }
    EXPECT_LT(steady_clock::now() - start, 100ms + aFewRequests);
}

TEST_P(ManyRequests, endWithTheInput)
{
    const auto start = steady_clock::now();
    stage.closeInput();
    EXPECT_EQ(stage.exitStatus(10s), 0);
    EXPECT_LT(steady_clock::now() - start, 100ms + aFewRequests);
    std::set<int> answered;
    for (json heard = stage.hear(); heard.is_object(); heard = stage.hear())
        answered.insert(heard["id"].get<int>());
    EXPECT_EQ(answered.size(), static_cast<std::size_t>(most));
}

INSTANTIATE_TEST_SUITE_P(Extension, ManyRequests,
    testing::Values(Stall{"thatStallInTheHandshake", &stallInHandshake},
        Stall{"thatStallBeforeTheHeaders", &stallBeforeHeaders},
        Stall{"thatStallInTheHeaders", &stallInHeaders}, Stall{"thatStallInTheBody", &stallInBody},
        Stall{"thatAreAnswered", &answer}),
    [](const auto& row) { return std::string{row.param.place}; });

} // namespace skyvane::test
