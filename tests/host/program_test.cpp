#include "platform/sandbox/file_access.h"
#include "tests/support/scratch_folder.h"
#include "ui/layout/widget_container.h"

#include <QImage>
#include <QProcess>

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace skyvane {

namespace {

struct Outcome {
    int status;
    std::string out;
    std::string error;
};

/// The program as a user starts it, with the extension of its own build.
Outcome runProgram(const QStringList& words, const std::filesystem::path& folder,
    const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(QString::fromStdString(folder.string()));
    process.start(SKYVANE_HOST, words);
    process.waitForFinished();
    return {
        process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
        process.readAllStandardOutput().toStdString(),
        process.readAllStandardError().toStdString(),
    };
}

/// An environment without a display, but for these variables.
QProcessEnvironment withoutDisplay(const std::filesystem::path& folder, const QStringList& variables = {})
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "WAYLAND_SOCKET", "QT_QPA_PLATFORM"})
        environment.remove(name);
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
        environment.insert(name, QString::fromStdString(folder.string()));
    environment.insert("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    for (const QString& variable : variables)
        environment.insert(variable.section('=', 0, 0), variable.section('=', 1));
    return environment;
}

} // namespace

TEST(Program, theRadarIsListedWithItsFamilies)
{
    const test::ScratchFolder folder;
    const Outcome outcome = runProgram({"list"}, folder.path());
    EXPECT_EQ(outcome.error, "");
    EXPECT_THAT(outcome.out, testing::HasSubstr("org.skyvane.widgets.radar\tSky Radar\tsmall, medium\n"));
}

TEST(Program, theStatusSaysWhatProtectsThisMachine)
{
    const test::ScratchFolder folder;
    const Outcome outcome = runProgram({"status"}, folder.path());
    EXPECT_EQ(outcome.error, "");
    EXPECT_THAT(outcome.out, testing::HasSubstr("system calls\tonly those it needs\n"));
    const std::string files = FileAccess::version() > 0
        ? "only what it needs (Landlock " + std::to_string(FileAccess::version()) + ")"
        : "all that you may read (this kernel lacks Landlock, or the filter)";
    EXPECT_THAT(outcome.out, testing::HasSubstr("files\t" + files + "\n"));
    EXPECT_THAT(
        outcome.out, testing::HasSubstr("connections\tmade for it, to the sources or the proxy alone\n"));
    EXPECT_THAT(outcome.out, testing::HasSubstr("privileges\tnever more\n"));
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

TEST(Program, theUsersHintingOfFontsIsHeededWherePixelsAreLarge)
{
    const test::ScratchFolder folder;
    const QString environmentsFonts = qEnvironmentVariable("FONTCONFIG_FILE");
    const auto picture = [&](const char* hintStyle, const char* scale) {
        const std::filesystem::path fonts = folder.path() / "fonts.conf";
        std::ofstream{fonts} << "<fontconfig><include>" << environmentsFonts.toStdString() << "</include>"
                             << "<match target=\"pattern\"><edit name=\"hintstyle\"><const>" << hintStyle
                             << "</const></edit></match></fontconfig>";
        const QString variable = QStringLiteral("FONTCONFIG_FILE=") + QString::fromStdString(fonts.string());
        const Outcome outcome = runProgram({"render", "radar", "medium", "--sample", "--scale", scale},
            folder.path(), withoutDisplay(folder.path(), {variable}));
        EXPECT_EQ(outcome.error, "");
        return QImage{QString::fromStdString((folder.path() / "radar-medium.png").string())};
    };
    EXPECT_NE(picture("hintslight", "1"), picture("hintnone", "1"));
    EXPECT_EQ(picture("hintslight", "2"), picture("hintnone", "2"));
    EXPECT_FALSE(picture("hintslight", "1").isNull());
}

TEST(Program, whatIsRenderedIsMirroredWhereTheUsersLanguageRunsFromRightToLeft)
{
    const test::ScratchFolder folder;
    const auto scopeStandsAt = [&](const QString& language, int x) {
        const Outcome outcome = runProgram({"render", "radar", "medium", "--sample"}, folder.path(),
            withoutDisplay(folder.path(), {"LC_ALL=" + language}));
        EXPECT_EQ(outcome.error, "");
        const QImage image{QString::fromStdString((folder.path() / "radar-medium.png").string())};
        constexpr int bottomOfOuterRing = 153;
        return image.pixelColor(x, bottomOfOuterRing) != image.pixelColor(x, bottomOfOuterRing + 8);
    };
    constexpr int atTheLeft = 85;
    constexpr int atTheRight = 364 - atTheLeft;
    EXPECT_TRUE(scopeStandsAt("C.UTF-8", atTheLeft));
    EXPECT_FALSE(scopeStandsAt("C.UTF-8", atTheRight));
    EXPECT_TRUE(scopeStandsAt("ar_EG.UTF-8", atTheRight));
    EXPECT_FALSE(scopeStandsAt("ar_EG.UTF-8", atTheLeft));
    EXPECT_TRUE(scopeStandsAt("he_IL.UTF-8", atTheLeft)); // Without a catalogue, texts are English.
}

TEST(Program, withoutADisplayItEndsWithOneLine)
{
    const test::ScratchFolder folder;
    const QStringList dead{"DISPLAY=:59999", "WAYLAND_DISPLAY=wayland-none"};
    for (const QStringList& variables : {QStringList{}, dead.mid(0, 1), dead.mid(1, 1), dead,
             dead + QStringList{"QT_QPA_PLATFORM=wayland;xcb"}, QStringList{"QT_QPA_PLATFORM=xcb"},
             QStringList{"QT_QPA_PLATFORM=nonsense"}}) {
        const Outcome outcome = runProgram({}, folder.path(), withoutDisplay(folder.path(), variables));
        const std::string why = variables.empty() ? "neither DISPLAY nor WAYLAND_DISPLAY is set"
                                                  : "none is found by " + variables.join(", ").toStdString();
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.error, "skyvane-host: no display: " + why + "\n");
        EXPECT_EQ(outcome.out, "");
    }
}

TEST(Program, commandsNeedNoDisplay)
{
    const test::ScratchFolder folder;
    const auto environment = withoutDisplay(folder.path(), {"QT_QPA_PLATFORM=xcb"});
    for (const QStringList& words : {QStringList{"--help"}, QStringList{"--version"}, QStringList{"list"},
             QStringList{"render", "radar", "small", "--sample"}}) {
        const Outcome outcome = runProgram(words, folder.path(), environment);
        EXPECT_EQ(outcome.status, 0) << words.join(' ').toStdString();
        EXPECT_EQ(outcome.error, "");
    }
    EXPECT_EQ(runProgram({"quit"}, folder.path(), environment).error,
        "skyvane-host: there is no session bus to ask the running host on\n");
}

TEST(Program, theNearestAircraftOfTheSampleIsOneLine)
{
    const test::ScratchFolder folder;
    const Outcome outcome = runProgram({"line", "--sample"}, folder.path());
    EXPECT_EQ(outcome.error, "");
    EXPECT_EQ(outcome.out, "ASA512 B739 3.7 mi 12,500 ft NW\n");
    EXPECT_THAT(runProgram({"line", "--sample", "--json", "--format={callsign}"}, folder.path()).out,
        testing::StartsWith(
            R"({"text":"ASA512","tooltip":"NEAREST\nASA512\nB739 · N512AS\n3.7 mi · 12,500 ft\n)"
            "5 in range"));
}

TEST(Program, theLineIsInTheUsersLanguage)
{
    const test::ScratchFolder folder;
    const auto environment = withoutDisplay(folder.path(), {"LANG=es_ES.UTF-8"});
    EXPECT_EQ(runProgram({"line", "--sample"}, folder.path(), environment).out,
        "ASA512 B739 3.7 mi 12.500 ft NO\n");
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
