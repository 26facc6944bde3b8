#include "companion/photo/child.h"

#include "companion/photo/answer.h"
#include "companion/photo/decoder/decode.h"
#include "companion/photo/limits.h"
#include "companion/photo/photo_image.h"
#include "tests/companion/companion_stage.h"
#include "tests/companion/photo/photo_bytes.h"
#include "tests/support/process_status.h"

#include <QImageWriter>
#include <QProcess>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <fstream>
#include <thread>

namespace skyvane {

namespace {

using namespace std::chrono_literals;

/// Watched by the sanitizers of this build; and as it is installed, with its bounds on memory and time.
constexpr std::array programs{SKYVANE_PHOTO, SKYVANE_PHOTO_AS_INSTALLED};

/// The kernel's bound of a process.
rlim_t most(pid_t process, __rlimit_resource resource)
{
    rlimit limit{};
    prlimit(process, resource, nullptr, &limit);
    return limit.rlim_max;
}

/// All pixels differ from those beside them: nothing about it is easy.
QImage crowded(const QSize& size)
{
    QImage image{size, QImage::Format_RGB32};
    for (int y = 0; y < size.height(); ++y) {
        auto* const row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x)
            row[x] = qRgb(x * 7, y * 5, (x / 16 + y / 16) * 9);
    }
    return image;
}

std::string progressive(const QImage& image, int quality)
{
    QByteArray bytes;
    QBuffer buffer{&bytes};
    QImageWriter writer{&buffer, "jpg"};
    writer.setProgressiveScanWrite(true);
    writer.setQuality(quality);
    writer.write(image);
    return bytes.toStdString();
}

class PhotoChild : public testing::Test {
protected:
    /// A program that does this in a shell.
    std::filesystem::path program(const std::string& commands) const
    {
        std::filesystem::path file = scratch.path() / "program";
        std::ofstream{file} << "#!/bin/sh\n" << commands << "\n";
        std::filesystem::permissions(file, std::filesystem::perms::owner_all);
        return file;
    }

    /// Whether it comes back at once when it is called off, and nothing of it is left.
    static void expectCalledOff(
        const std::filesystem::path& program, const std::string& file,
        const std::function<void()>& meanwhile = [] {})
    {
        const auto before = test::ProcessStatus::children();
        std::stop_source stop;
        std::atomic<bool> isBack = false;
        std::jthread waiting{[&] {
            EXPECT_FALSE(decodedInChild(program, file, stop.get_token()));
            isBack = true;
        }};
        EXPECT_TRUE(test::waitFor([&] { return test::ProcessStatus::children() != before; }));
        meanwhile();
        EXPECT_FALSE(isBack);
        stop.request_stop();
        EXPECT_TRUE(test::waitFor([&] { return isBack.load(); }, 2s));
        EXPECT_EQ(test::ProcessStatus::children(), before);
    }

    test::ScratchFolder scratch;
};

} // namespace

TEST_F(PhotoChild, aPhotographIsDecodedAsInThisProcess)
{
    for (const char* program : programs) {
        for (const char* format : {"JPG", "PNG"}) {
            const std::string file = test::picture({1300, 900}, format);
            const auto pixels = decodedInChild(program, file, {});
            ASSERT_TRUE(pixels) << program;
            EXPECT_EQ(pixels->width, 1260U);
            EXPECT_EQ(pixels, decodedPhoto(file)) << program << format;
        }
    }
}

TEST_F(PhotoChild, theImageHasThePixelsAndTheirColours)
{
    const QImage image = decodePhotoBy(SKYVANE_PHOTO)(test::picture({42, 28}, "PNG"), {});
    EXPECT_EQ(image.size(), QSize(42, 28));
    EXPECT_EQ(image.pixelColor(0, 0), QColor(0x30, 0x60, 0xa0));
    EXPECT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
    EXPECT_TRUE(decodePhotoBy(SKYVANE_PHOTO)("nonsense", {}).isNull());
}

TEST_F(PhotoChild, everythingElseIsNoPhotograph)
{
    for (const char* program : programs) {
        EXPECT_FALSE(decodedInChild(program, "", {}));
        EXPECT_FALSE(decodedInChild(program, "GIF89a", {}));
        EXPECT_FALSE(decodedInChild(program, test::picture({42, 28}, "JPG").substr(0, 400), {}));
        EXPECT_FALSE(decodedInChild(program, std::string(PhotoFile::largest, 'x'), {}));
        EXPECT_FALSE(decodedInChild(program, std::string(PhotoFile::largest + 1, 'x'), {}));
    }
}

TEST_F(PhotoChild, aProgramThatAnswersAnythingElseShowsNothing)
{
    const auto before = test::ProcessStatus::children();
    const std::string file = test::picture({420, 280}, "PNG");
    EXPECT_FALSE(decodedInChild(scratch.path() / "missing", file, {}));
    EXPECT_FALSE(decodedInChild(program("exit 0"), file, {}));
    EXPECT_FALSE(decodedInChild(program("exec /bin/cat"), file, {}));
    EXPECT_FALSE(decodedInChild(program("exec /bin/cat /dev/zero"), file, {}));
    EXPECT_FALSE(decodedInChild(program("kill -9 $$"), file, {}));
    EXPECT_FALSE(decodedInChild(program("exit 0"), std::string(PhotoFile::largest, 'x'), {}));
    EXPECT_EQ(test::ProcessStatus::children(), before);
}

TEST_F(PhotoChild, whatIsAnsweredBeforeTheEndIsNotWaitedFor)
{
    const auto started = std::chrono::steady_clock::now();
    EXPECT_FALSE(decodedInChild(program("exec /bin/cat /dev/zero"), "x", {}));
    EXPECT_LT(std::chrono::steady_clock::now() - started, 5s);
}

TEST_F(PhotoChild, itIsGivenNothingButItsStreams)
{
    const auto said = (scratch.path() / "said").string();
    const int leaking = open("/dev/null", O_RDONLY); // Which a program that is started would have, too.
    decodedInChild(program("/bin/ls /proc/self/fd >" + said + "\n/usr/bin/env >>" + said), "x", {});
    close(leaking);
    std::string words;
    std::ifstream file{said};
    for (std::string word; file >> word;)
        words += word + " ";
    EXPECT_EQ(words.substr(0, 12), "0 1 2 3 PWD=") << words; // The third is the folder that is listed.
    EXPECT_EQ(words.find("HOME="), std::string::npos) << words;
}

TEST_F(PhotoChild, itIsEndedAtOnceWhenNobodyWantsThePicture)
{
    const auto sleeping = program("exec /bin/sleep 600");
    expectCalledOff(sleeping, "x");
    expectCalledOff(sleeping, std::string(PhotoFile::largest, 'x')); // More than it has taken.
    expectCalledOff(program("trap '' TERM INT HUP; while :; do :; done"), "x");
    expectCalledOff(sleeping, "x", [] {
        const pid_t child = test::ProcessStatus::children().back();
        kill(child, SIGSTOP);
        EXPECT_TRUE(
            test::waitFor([&] { return test::ProcessStatus::line(child, "State").starts_with('T'); }));
    });
}

TEST_F(PhotoChild, nothingIsStartedForSomebodyWhoIsGone)
{
    std::stop_source stop;
    stop.request_stop();
    const auto begun = scratch.path() / "begun";
    EXPECT_FALSE(decodedInChild(program("echo >" + begun.string()), "x", stop.get_token()));
    EXPECT_FALSE(std::filesystem::exists(begun));
}

TEST_F(PhotoChild, theProgramServesInConfinement)
{
    for (const char* program : programs) {
        QProcess process;
        process.start(program, QStringList{});
        ASSERT_TRUE(process.waitForStarted());
        const auto id = static_cast<pid_t>(process.processId());
        EXPECT_TRUE(test::waitFor([&] { return test::ProcessStatus::line(id, "Seccomp") == "2"; }))
            << program;
        EXPECT_EQ(test::ProcessStatus::line(id, "NoNewPrivs"), "1");
        EXPECT_EQ(most(id, RLIMIT_CORE), 0U);
        EXPECT_EQ(most(id, RLIMIT_NOFILE), 0U);
        EXPECT_EQ(most(id, RLIMIT_FSIZE), 0U);
        EXPECT_NE(most(id, RLIMIT_CPU), RLIM_INFINITY);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished());
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    }
}

TEST_F(PhotoChild, asInstalledItHasAQuarterOfAGibibyteAndTwoSeconds)
{
    QProcess process;
    process.start(SKYVANE_PHOTO_AS_INSTALLED, QStringList{});
    ASSERT_TRUE(process.waitForStarted());
    const auto id = static_cast<pid_t>(process.processId());
    EXPECT_TRUE(test::waitFor([&] { return test::ProcessStatus::line(id, "Seccomp") == "2"; }));
    EXPECT_EQ(most(id, RLIMIT_AS), rlim_t{256} << 20);
    EXPECT_EQ(most(id, RLIMIT_CPU), 2U);
    process.closeWriteChannel();
    process.waitForFinished();
}

TEST_F(PhotoChild, theLargestPhotographsOfEachKindKeepWithinThem)
{
    const QImage large = crowded({4096, 4096});
    const std::string jpeg = progressive(large, 10);
    const std::string png = test::picture({4096, 4096}, "PNG");
    for (const std::string& file : {jpeg, png}) {
        ASSERT_LE(file.size(), PhotoFile::largest);
        const auto pixels = decodedInChild(SKYVANE_PHOTO_AS_INSTALLED, file, {});
        ASSERT_TRUE(pixels);
        EXPECT_EQ(pixels->height, 840U);
    }
}

} // namespace skyvane
