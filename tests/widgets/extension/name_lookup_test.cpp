#include "tests/widgets/extension/name_server.h"
#include "tests/widgets/extension/own_hosts.h"
#include "tests/widgets/extension/scenario.h"

#include <chrono>

namespace skyvane::test {

namespace {

using namespace std::chrono_literals;
using std::chrono::steady_clock;

} // namespace

TEST_F(ExtensionScenario, cancellationsAndTheEndOfInputAreHeardInANameLookUp)
{
    constexpr int most = 64;
    setHome();
    const NameServer nameServer{NameServer::Habit::silent};
    const OwnHosts hosts{"127.0.0.1 localhost\n"};
    for (int id = 0; id < most; ++id)
        stage.ask(id, "widgets.timeline", radar);
    ASSERT_TRUE(nameServer.waitForQuestion());
    const auto start = steady_clock::now();
    stage.cancel(0);
    expectError(-32800, 0);
    stage.closeInput();
    EXPECT_EQ(stage.exitStatus(10s), 0);
    EXPECT_LT(steady_clock::now() - start, 2s) << "a look-up would last eight";
    for (int id = 1; id < most; ++id)
        EXPECT_EQ(stage.hear()["error"]["code"], -32800);
}

} // namespace skyvane::test
