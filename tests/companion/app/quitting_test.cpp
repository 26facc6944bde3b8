#include "companion/app/run_companion.h"
#include "platform/net/url_session.h"
#include "tests/companion/companion_stage.h"
#include "tests/support/process_status.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <fstream>

namespace skyvane {

namespace {

using namespace std::chrono_literals;

constexpr const char* photo
    = R"({"photos":[{"thumbnail_large":{"src":"https://t.plnspttrs.net/photo.jpg"}}]})";

/// Status of a companion that had nothing to wait for.
constexpr int quitAtOnce = 7;

/// A program that would decode for ten minutes and says so in a file.
std::filesystem::path slowDecoder(const std::filesystem::path& folder, const std::filesystem::path& begun)
{
    std::filesystem::path program = folder / "decoder";
    std::ofstream{program} << "#!/bin/sh\necho >" << begun.string() << "\nexec /bin/sleep 600\n";
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    return program;
}

/// Runs the companion and quits it as soon as a photograph is being decoded.
void quitWhileDecoding()
{
    test::CompanionStage stage;
    const auto begun = stage.scratch.path() / "begun";
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    stage.server.answer("/pub/photos/hex/", {.body = photo});
    stage.server.answer("/photo.jpg", {.body = "anything"});
    const CompanionSetup setup{
        .sessionBus = QDBusConnection{"none"},
        .systemBus = QDBusConnection{"none"},
        .transport = UrlSession{},
        .decode = decodePhotoBy(slowDecoder(stage.scratch.path(), begun)),
        .open = [](const QUrl&) {},
        .hostProgram = {},
        .autostart = {},
        .alerts = stage.scratch.path() / "alerts.json",
        .memory = stage.scratch.path() / "companion.ini",
    };
    QElapsedTimer sinceQuit;
    QTimer look;
    look.callOnTimeout([&] {
        if (!std::filesystem::exists(begun) || sinceQuit.isValid())
            return;
        sinceQuit.start();
        QCoreApplication::quit();
    });
    look.start(20ms);
    QTimer::singleShot(1min, [] { std::_Exit(4); });
    const int status = runCompanion(setup, {.link = "skyvane://aircraft/a1b2c3"}, {});
    const bool isAtOnce = sinceQuit.isValid() && sinceQuit.elapsed() < 2000;
    std::_Exit(status == 0 && isAtOnce && test::ProcessStatus::children().empty() ? quitAtOnce : 3);
}

} // namespace

TEST(QuittingDeathTest, theCompanionDoesNotWaitForAPhotograph)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(quitWhileDecoding(), testing::ExitedWithCode(quitAtOnce), "");
}

} // namespace skyvane
