#include "companion/photo/decoder/decode.h"
#include "companion/photo/limits.h"
#include "tests/companion/companion_stage.h"
#include "tests/support/memory.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QImageWriter>

#include <gtest/gtest.h>
#include <turbojpeg.h>
#include <webp/encode.h>

#include <array>
#include <vector>

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

/// Null for what is no photograph.
QImage decodedImage(std::string_view bytes)
{
    const auto pixels = decodedPhoto(bytes);
    if (!pixels)
        return {};
    return QImage{reinterpret_cast<const uchar*>(pixels->list.data()), static_cast<int>(pixels->width),
        static_cast<int>(pixels->height), QImage::Format_RGBA8888}
        .copy();
}

QImage decoded(const QByteArray& bytes)
{
    return decodedImage({bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

/// Four pixels beside each other, of differing colours and opacities.
QImage fourPixels()
{
    QImage image{4, 1, QImage::Format_RGBA8888};
    image.setPixelColor(0, 0, {0xff, 0x10, 0x20, 0xff});
    image.setPixelColor(1, 0, {0x30, 0xe0, 0x40, 0x80});
    image.setPixelColor(2, 0, {0x50, 0x60, 0xd0, 0x01});
    image.setPixelColor(3, 0, {0, 0, 0, 0});
    return image;
}

QByteArray webpOf(const QImage& image, bool isLossless)
{
    constexpr float quality = 80;
    const QImage plain = image.convertToFormat(QImage::Format_RGBA8888);
    const int line = static_cast<int>(plain.bytesPerLine());
    uint8_t* bytes = nullptr;
    const std::size_t size = isLossless
        ? WebPEncodeLosslessRGBA(plain.constBits(), plain.width(), plain.height(), line, &bytes)
        : WebPEncodeRGBA(plain.constBits(), plain.width(), plain.height(), line, quality, &bytes);
    QByteArray file{reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size)};
    WebPFree(bytes);
    return file;
}

/// A JPEG whose colours are inks: cyan, magenta, yellow and black, as files have them.
QByteArray inkFileOf(const QSize& size, const std::array<unsigned char, 4>& ink)
{
    constexpr int quality = 95;
    std::vector<unsigned char> pixels;
    for (int index = 0; index < size.width() * size.height(); ++index)
        pixels.insert(pixels.end(), ink.begin(), ink.end());
    const tjhandle encoder = tjInitCompress();
    unsigned char* bytes = nullptr;
    unsigned long length = 0;
    tjCompress2(encoder, pixels.data(), size.width(), 0, size.height(), TJPF_CMYK, &bytes, &length,
        TJSAMP_444, quality, 0);
    QByteArray file{reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(length)};
    tjFree(bytes);
    tjDestroy(encoder);
    return file;
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

TEST(PhotoImage, nothingButPixelsCounts)
{
    const QImage plain = halves({60, 40});
    QImage image = plain;
    image.setText("Comment", "blanks");
    image.setColorSpace(QColorSpace::AdobeRgb);
    image.setDotsPerMeterX(11'811);
    for (const char* format : {"png", "jpg"}) {
        ASSERT_FALSE(decoded(fileOf(plain, format)).isNull()) << format;
        EXPECT_EQ(decoded(fileOf(image, format)), decoded(fileOf(plain, format))) << format;
    }
}

TEST(PhotoImage, coloursAndOpacityAreThoseOfTheFile)
{
    const QImage image = fourPixels();
    EXPECT_EQ(decoded(fileOf(image, "png")), image);
    EXPECT_EQ(decoded(webpOf(image, /*isLossless=*/true)).pixelColor(1, 0), image.pixelColor(1, 0));
    for (const auto format : {QImage::Format_RGB32, QImage::Format_RGBA64, QImage::Format_Grayscale8,
             QImage::Format_Grayscale16, QImage::Format_Indexed8, QImage::Format_Mono}) {
        const QImage file = halves({60, 40}).convertToFormat(format);
        EXPECT_EQ(decoded(fileOf(file, "png")), file.convertToFormat(QImage::Format_RGBA8888)) << format;
    }
}

TEST(PhotoImage, aJPEGIsDecodedWhateverItsColoursAreMadeOf)
{
    const QImage gray = decoded(fileOf(halves({60, 40}).convertToFormat(QImage::Format_Grayscale8), "jpg"));
    EXPECT_EQ(gray.size(), QSize(60, 40));
    EXPECT_EQ(gray.pixelColor(5, 5).red(), gray.pixelColor(5, 5).blue());
    const QColor ink = decoded(inkFileOf({16, 16}, {200, 100, 50, 128})).pixelColor(8, 8);
    EXPECT_NEAR(ink.red(), 100, 4);
    EXPECT_NEAR(ink.green(), 50, 4);
    EXPECT_NEAR(ink.blue(), 25, 4);
    EXPECT_EQ(ink.alpha(), 255);
}

TEST(PhotoImage, aWebPIsDecodedLossyAndLossless)
{
    for (const bool isLossless : {true, false}) {
        const QImage image = decoded(webpOf(halves({2600, 1700}), isLossless));
        EXPECT_EQ(image.size(), QSize(1260, 840)) << isLossless;
        EXPECT_GT(image.pixelColor(600, 400).red(), 0x80) << isLossless;
        EXPECT_GT(image.pixelColor(660, 400).blue(), 0x80) << isLossless;
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
    EXPECT_EQ(decodedImage(test::picture({42, 28}, "JPG")).size(), QSize(42, 28));
    EXPECT_EQ(decodedImage(test::picture({42, 28}, "PNG")).size(), QSize(42, 28));
}

TEST(PhotoImage, everythingElseIsNoPhotograph)
{
    const std::string jpeg = test::picture({42, 28}, "JPG");
    EXPECT_TRUE(decodedImage("").isNull());
    EXPECT_TRUE(decodedImage("<html>").isNull());
    EXPECT_TRUE(decodedImage(jpeg.substr(0, 60)).isNull());
    EXPECT_TRUE(decodedImage(test::picture({42, 28}, "BMP")).isNull());
    EXPECT_TRUE(decodedImage(R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"/>)").isNull());
    EXPECT_TRUE(decodedImage(test::picture({4097, 1}, "PNG")).isNull());
    EXPECT_TRUE(decodedImage(std::string(9 << 20, 'x')).isNull());
}

TEST(PhotoImage, aFileThatClaimsToBeHugeIsNotDecoded)
{
    std::string png = test::picture({42, 28}, "PNG");
    png.replace(16, 8, std::string("\x00\x00\xff\xff\x00\x00\xff\xff", 8)); // Width and height in its header.
    EXPECT_TRUE(decodedImage(png).isNull());
}

} // namespace skyvane
