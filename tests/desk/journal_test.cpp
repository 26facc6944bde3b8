#include "desk/journal.h"

#include "tests/session/journal.h"

#include <QDebug>

#include <gmock/gmock.h>

namespace skyvane {

TEST(DeskJournal, everyLineIsOneOfPrintableText)
{
    const test::Journal journal;
    keepJournalPrintable();
    keepJournalPrintable();
    qWarning("%s", "\x1b[31mred\u009b\u202e\nsecond line");
    qWarning() << QString(200'000, QLatin1Char{'x'});
    ASSERT_EQ(test::Journal::lines().size(), 2U);
    EXPECT_EQ(test::Journal::lines()[0], " [31mred  second line");
    EXPECT_LT(test::Journal::lines()[1].size(), 1100U);
}

} // namespace skyvane
