#include "companion/app/run_companion.h"
#include "companion/photo/photo_decoder.h"
#include "platform/net/url_session.h"
#include "tests/companion/companion_stage.h"
#include "tests/support/process_status.h"

#include <QApplication>

#include <unistd.h>

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <semaphore>
#include <thread>

namespace skyvane {

namespace {

using namespace std::chrono_literals;

constexpr const char* photo
    = R"({"photos":[{"thumbnail_large":{"src":"https://t.plnspttrs.net/photo.jpg"}}]})";

QImage onePixel(std::string_view)
{
    return {1, 1, QImage::Format_RGB32};
}

/// Runs the companion, whose decoder takes minutes, and quits it as soon as there is something to decode.
void quitWhileDecoding()
{
    test::CompanionStage stage;
    stage.server.answer(test::feedPath, {.body = test::threeAircraft});
    stage.server.answer("/pub/photos/hex/", {.body = photo});
    stage.server.answer("/photo.jpg", {.body = "anything"});
    QTimer::singleShot(1min, [] { std::_Exit(4); });
    const CompanionSetup setup{
        .sessionBus = QDBusConnection{"none"},
        .systemBus = QDBusConnection{"none"},
        .transport = UrlSession{},
        .decode = [](std::string_view) -> QImage {
            QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
            std::this_thread::sleep_for(1min);
            std::_Exit(3);
        },
        .open = [](const QUrl&) {},
        .hostProgram = {},
        .autostart = {},
        .memory = stage.scratch.path() / "companion.ini",
    };
    std::exit(runCompanion(setup, {.link = "skyvane://aircraft/a1b2c3"}, {}));
}

} // namespace

TEST(PhotoDecoder, aPhotographIsDecodedAsItIsAskedFor)
{
    PhotoDecoder decoder{onePixel};
    EXPECT_EQ(decoder.image("bytes", {}).size(), QSize(1, 1));
    EXPECT_TRUE(test::waitFor([&] { return decoder.isIdle(); }));
}

TEST(PhotoDecoder, itsThreadEndsWithTheDecodingAndWakesNobodyUpLater)
{
    const auto threads = [] { return test::ProcessStatus::number(getpid(), "Threads"); };
    std::size_t during = 0;
    PhotoDecoder decoder{[&](std::string_view bytes) {
        during = threads();
        return onePixel(bytes);
    }};
    const std::size_t before = threads();
    decoder.image("bytes", {});
    EXPECT_EQ(during, before + 1);
    EXPECT_TRUE(test::waitFor([&] { return threads() == before; }, 10s));
}

TEST(PhotoDecoder, whoeverWaitsCanBeCalledOffAtOnce)
{
    std::binary_semaphore begun{0};
    std::binary_semaphore released{0};
    PhotoDecoder decoder{[&](std::string_view bytes) {
        begun.release();
        released.acquire();
        return onePixel(bytes);
    }};
    std::stop_source stop;
    std::atomic<bool> isBack = false;
    std::jthread waiting{[&] {
        EXPECT_TRUE(decoder.image("bytes", stop.get_token()).isNull());
        isBack = true;
    }};
    begun.acquire();
    stop.request_stop();
    EXPECT_TRUE(test::waitFor([&] { return isBack.load(); }));
    EXPECT_FALSE(decoder.isIdle());
    released.release();
    EXPECT_TRUE(test::waitFor([&] { return decoder.isIdle(); }));
}

TEST(PhotoDecoder, nothingIsDecodedForSomebodyWhoIsGone)
{
    std::atomic<int> count = 0;
    PhotoDecoder decoder{[&](std::string_view bytes) {
        ++count;
        return onePixel(bytes);
    }};
    std::stop_source stop;
    stop.request_stop();
    EXPECT_TRUE(decoder.image("bytes", stop.get_token()).isNull());
    EXPECT_TRUE(test::waitFor([&] { return decoder.isIdle(); }));
    EXPECT_EQ(count, 0);
}

TEST(PhotoDecoderDeathTest, quittingDoesNotWaitForIt)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(quitWhileDecoding(), testing::ExitedWithCode(0), "");
}

} // namespace skyvane
