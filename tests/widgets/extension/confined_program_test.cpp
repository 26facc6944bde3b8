#include "tests/support/process_status.h"
#include "tests/widgets/extension/scenario.h"

namespace skyvane::test {

TEST_F(ExtensionScenario, theProgramServesInConfinement)
{
    expectStillAnswers();
    const pid_t process = ProcessStatus::children().at(0);
    EXPECT_EQ(ProcessStatus::line(process, "NoNewPrivs"), "1");
    EXPECT_EQ(ProcessStatus::line(process, "Seccomp"), "2");
}

} // namespace skyvane::test
