#include "companion/photo/photo_file.h"
#include "companion/photo/photo_image.h"
#include "tests/companion/companion_stage.h"
#include "tests/support/memory.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QImageWriter>

#include <gtest/gtest.h>

namespace skyvane {

namespace {

constexpr std::size_t mebibyte = std::size_t{1} << 20;
constexpr QColor left{0xc0, 0x20, 0x20};
constexpr QColor right{0x20, 0x20, 0xc0};

/// Of two colours side by side.
QImage halves(const QSize& size)
{
    QImage image{size, QImage::Format_RGB32};
    image.fill(left);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = size.width() / 2; x < size.width(); ++x)
            image.setPixelColor(x, y, right);
    }
    return image;
}

QByteArray fileOf(const QImage& image, const char* format, bool isProgressive = false,
    QImageIOHandler::Transformation transformation = QImageIOHandler::TransformationNone)
{
    QByteArray bytes;
    QBuffer buffer{&bytes};
    QImageWriter writer{&buffer, format};
    writer.setProgressiveScanWrite(isProgressive);
    writer.setTransformation(transformation);
    writer.write(image);
    return bytes;
}

QImage decoded(const QByteArray& bytes)
{
    return decodePhoto({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

/// A PNG's compressed text: so many blanks.
QByteArray textChunk(int size)
{
    constexpr int lengthBefore = 4; // Of qCompress, before the stream.
    QByteArray content{"Comment\0\0", 9};
    content += qCompress(QByteArray{size, ' '}, 9).mid(lengthBefore);
    QByteArray typed = "zTXt" + content;
    quint32 sum = 0xffffffff;
    for (const char byte : std::as_const(typed)) {
        sum ^= static_cast<uchar>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum & 1) != 0 ? sum >> 1 ^ 0xedb88320 : sum >> 1;
    }
    const auto number = [](quint32 value) {
        QByteArray bytes;
        for (int shift = 24; shift >= 0; shift -= 8)
            bytes += static_cast<char>(value >> shift);
        return bytes;
    };
    return number(static_cast<quint32>(content.size())) + typed + number(~sum);
}

/// A small PNG that carries as many texts as make it some 430 KB.
QByteArray bomb()
{
    constexpr qsizetype header = 8 + 25; // The signature and the first chunk.
    constexpr qsizetype size = 430'000;
    QByteArray file = fileOf(halves({10, 10}), "png");
    const QByteArray text = textChunk(7 << 20);
    file.insert(header, text.repeated((size - file.size()) / text.size()));
    return file;
}

} // namespace

TEST(PhotoImage, textsOfAPNGAreNeverUnpacked)
{
    const QByteArray file = bomb();
    ASSERT_GT(file.size(), 400'000);
    test::forgetMemoryPeak();
    const std::size_t before = test::memoryInUse();
    const QImage image = decoded(file);
    EXPECT_EQ(image.size(), QSize(10, 10));
    EXPECT_LT(test::memoryPeak(), before + 16 * mebibyte);
}

TEST(PhotoImage, nothingButPixelsIsKept)
{
    QImage image = halves({60, 40});
    image.setText("Comment", "blanks");
    image.setColorSpace(QColorSpace::AdobeRgb);
    image.setDotsPerMeterX(11'811);
    for (const char* format : {"png", "jpg"}) {
        const QImage kept = decoded(fileOf(image, format));
        EXPECT_EQ(kept.size(), image.size());
        EXPECT_TRUE(kept.textKeys().isEmpty()) << format;
        EXPECT_FALSE(kept.colorSpace().isValid()) << format;
        EXPECT_EQ(kept.depth(), 32) << format;
        EXPECT_NE(kept.dotsPerMeterX(), 11'811) << format;
    }
}

TEST(PhotoImage, aLargeOneIsKeptAsTheMiddleThatIsShown)
{
    for (const char* format : {"png", "jpg"}) {
        const QImage image = decoded(fileOf(halves({4096, 2000}), format));
        EXPECT_EQ(image.size(), QSize(1260, 840)) << format;
        EXPECT_GT(image.pixelColor(600, 400).red(), 0x80) << format;
        EXPECT_GT(image.pixelColor(660, 400).blue(), 0x80) << format;
    }
    EXPECT_EQ(decoded(fileOf(halves({4096, 30}), "png")).size(), QSize(1260, 30));
    EXPECT_EQ(decoded(fileOf(halves({420, 280}), "jpg")).size(), QSize(420, 280));
}

TEST(PhotoImage, theTurnOfTheCameraIsFollowed)
{
    const QImage image = decoded(fileOf(
        halves({2800, 2000}), "jpg", /*isProgressive=*/false, QImageIOHandler::TransformationRotate90));
    EXPECT_EQ(image.size(), QSize(1260, 840));
    EXPECT_GT(image.pixelColor(630, 20).red(), 0x80);
    EXPECT_GT(image.pixelColor(630, 820).blue(), 0x80);
}

TEST(PhotoImage, aJPEGOfManyScansIsRefused)
{
    const QByteArray file = fileOf(halves({64, 64}), "jpg", /*isProgressive=*/true);
    EXPECT_EQ(decoded(file).size(), QSize(64, 64));
    const qsizetype lastScan = file.lastIndexOf("\xff\xda");
    const qsizetype end = file.size() - 2;
    QByteArray many = file;
    many.insert(end, file.mid(lastScan, end - lastScan).repeated(PhotoFile::mostScans));
    EXPECT_TRUE(decoded(many).isNull());
}

TEST(PhotoImage, aPhotographWithAFaultInItsMiddleIsNone)
{
    QByteArray broken = fileOf(halves({10, 10}), "png");
    const qsizetype pixel = broken.indexOf("IDAT") + 8;
    broken[pixel] = static_cast<char>(~broken[pixel]);
    EXPECT_TRUE(decoded(broken).isNull());
}

TEST(PhotoImage, photographsAreDecoded)
{
    EXPECT_EQ(decodePhoto(test::picture({42, 28}, "JPG")).size(), QSize(42, 28));
    EXPECT_EQ(decodePhoto(test::picture({42, 28}, "PNG")).size(), QSize(42, 28));
}

TEST(PhotoImage, everythingElseIsNoPhotograph)
{
    const std::string jpeg = test::picture({42, 28}, "JPG");
    EXPECT_TRUE(decodePhoto("").isNull());
    EXPECT_TRUE(decodePhoto("<html>").isNull());
    EXPECT_TRUE(decodePhoto(jpeg.substr(0, 60)).isNull());
    EXPECT_TRUE(decodePhoto(test::picture({42, 28}, "BMP")).isNull());
    EXPECT_TRUE(decodePhoto(R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"/>)").isNull());
    EXPECT_TRUE(decodePhoto(test::picture({4097, 1}, "PNG")).isNull());
    EXPECT_TRUE(decodePhoto(std::string(9 << 20, 'x')).isNull());
}

TEST(PhotoImage, aFileThatClaimsToBeHugeIsNotDecoded)
{
    std::string png = test::picture({42, 28}, "PNG");
    png.replace(16, 8, std::string("\x00\x00\xff\xff\x00\x00\xff\xff", 8)); // Width and height in its header.
    EXPECT_TRUE(decodePhoto(png).isNull());
}

} // namespace skyvane
