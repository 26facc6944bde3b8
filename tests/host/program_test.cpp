#include "tests/support/scratch_folder.h"
#include "ui/layout/widget_container.h"

#include <QImage>
#include <QProcess>

#include <gmock/gmock.h>

#include <filesystem>
#include <string>

namespace skyvane {

namespace {

struct Outcome {
    int status;
    std::string out;
    std::string error;
};

/// The program as a user starts it, with the extension of its own build.
Outcome runProgram(const QStringList& words, const std::filesystem::path& folder)
{
    QProcess process;
    process.setWorkingDirectory(QString::fromStdString(folder.string()));
    process.start(SKYVANE_HOST, words);
    process.waitForFinished();
    return {
        process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
        process.readAllStandardOutput().toStdString(),
        process.readAllStandardError().toStdString(),
    };
}

} // namespace

TEST(Program, theRadarIsListedWithItsFamilies)
{
    const test::ScratchFolder folder;
    const Outcome outcome = runProgram({"list"}, folder.path());
    EXPECT_EQ(outcome.error, "");
    EXPECT_THAT(outcome.out, testing::HasSubstr("org.skyvane.widgets.radar\tSky Radar\tsmall, medium\n"));
}

TEST(Program, theSampleOfEveryListedWidgetAndFamilyIsRendered)
{
    const test::ScratchFolder folder;
    const QString list = QString::fromStdString(runProgram({"list"}, folder.path()).out);
    for (const QString& line : list.split('\n', Qt::SkipEmptyParts)) {
        const QString kind = line.section('\t', 0, 0);
        for (const QString& family : line.section('\t', 2, 2).split(", ")) {
            const Outcome outcome = runProgram({"render", kind, family, "--sample"}, folder.path());
            EXPECT_EQ(outcome.error, "");
            EXPECT_EQ(outcome.status, 0);
            const QString file = kind.section('.', -1) + "-" + family + ".png";
            EXPECT_EQ(outcome.out, file.toStdString() + "\n");
            const Size size = WidgetContainer::size(WidgetContainer::named(family.toStdString()).value());
            EXPECT_EQ(QImage{QString::fromStdString(folder.path().string()) + "/" + file}.size(),
                QSizeF(size.width, size.height).toSize());
        }
    }
}

TEST(Program, wrongWordsAreOneLineOnStandardError)
{
    const test::ScratchFolder folder;
    const Outcome outcome = runProgram({"render", "clock", "small"}, folder.path());
    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.error,
        testing::MatchesRegex("skyvane-host: unknown widget \"clock\": known are .*radar.*\n"));
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
}

} // namespace skyvane
