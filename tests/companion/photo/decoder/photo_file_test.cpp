#include "companion/photo/decoder/photo_file.h"
#include "tests/companion/photo/photo_bytes.h"

#include <gtest/gtest.h>

#include <vector>

namespace skyvane {

namespace {

using namespace std::string_literals;
namespace JPEG = test::JPEG;
namespace PNG = test::PNG;
namespace WebP = test::WebP;

struct Row {
    const char* situation;
    std::string bytes;
    std::optional<std::string> stripped; ///< Absent: refused.
};

void expectRows(const std::vector<Row>& rows)
{
    for (const Row& row : rows)
        EXPECT_EQ(PhotoFile::stripped(row.bytes), row.stripped) << row.situation;
}

/// Refused wherever it ends, as long as something of it is missing.
void expectNoneOfItsBeginnings(const std::string& file)
{
    ASSERT_TRUE(PhotoFile::stripped(file));
    for (std::size_t size = 0; size < file.size(); ++size)
        EXPECT_EQ(PhotoFile::stripped(file.substr(0, size)), std::nullopt) << size;
}

} // namespace

TEST(PhotoFile, aPNGIsItsPixelsAlone)
{
    const std::string plain = PNG::file();
    const std::string colors = PNG::chunk("PLTE", "abcdef") + PNG::chunk("tRNS", "ab");
    expectRows({
        {"pixels alone", plain, plain},
        {"with a palette", PNG::file(colors), PNG::file(colors)},
        {"with texts, a profile and the camera's notes",
            PNG::file(PNG::chunk("tEXt", "a") + PNG::chunk("zTXt", "a") + PNG::chunk("iTXt", "a")
                + PNG::chunk("iCCP", "a") + PNG::chunk("eXIf", "a") + PNG::chunk("pHYs", "a")),
            plain},
        {"that moves", PNG::file(PNG::chunk("acTL", "a") + PNG::chunk("fdAT", "a")), plain},
        {"with something after its end", plain + PNG::chunk("zTXt", "a"), plain},
        {"with a chunk that one must know", PNG::file(PNG::chunk("ABCD", "a")), std::nullopt},
        {"with two headers", PNG::file(PNG::header(3, 2)), std::nullopt},
        {"that begins with pixels",
            PNG::signature + PNG::chunk("IDAT", "a") + PNG::header(3, 2) + PNG::chunk("IEND", ""),
            std::nullopt},
        {"with a length past its end", PNG::signature + PNG::header(3, 2) + "\xff\xff\xff\xffIDAT",
            std::nullopt},
        {"as wide as allowed", PNG::file({}, 4096, 1), PNG::file({}, 4096, 1)},
        {"wider", PNG::file({}, 4097, 1), std::nullopt},
        {"higher", PNG::file({}, 1, 4097), std::nullopt},
        {"without any width", PNG::file({}, 0, 1), std::nullopt},
    });
}

TEST(PhotoFile, aJPEGIsItsPixelsAlone)
{
    const std::string plain = JPEG::file();
    const std::string tables
        = JPEG::segment(0xdb, "q") + JPEG::segment(0xc4, "h") + JPEG::segment(0xdd, "ab");
    const std::string kept
        = JPEG::segment(0xe0, "JFIF\0a"s) + JPEG::segment(0xe1, "Exif\0\0a"s) + JPEG::segment(0xee, "Adobe");
    expectRows({
        {"pixels alone", plain, plain},
        {"with its tables", JPEG::file(tables), JPEG::file(tables)},
        {"with what changes how it looks", JPEG::file(kept), JPEG::file(kept)},
        {"with a profile, texts, a preview and remarks",
            JPEG::file(JPEG::segment(0xe2, "ICC_PROFILE\0a"s)
                + JPEG::segment(0xe1, "http://ns.adobe.com/xap/") + JPEG::segment(0xe0, "JFXX\0a"s)
                + JPEG::segment(0xed, "Photoshop 3.0") + JPEG::segment(0xfe, "remark")),
            plain},
        {"with something after its end", plain + "anything", plain},
        {"with marks repeated",
            JPEG::start + "\xff\xff" + JPEG::frame(3, 2) + JPEG::scan("a\xff\xff") + JPEG::end,
            JPEG::start + JPEG::frame(3, 2) + JPEG::scan("a") + JPEG::end},
        {"of as many scans as allowed", JPEG::file({}, 64), JPEG::file({}, 64)},
        {"of one more", JPEG::file({}, 65), std::nullopt},
        {"without a scan", JPEG::file({}, 0), std::nullopt},
        {"whose scan comes first", JPEG::start + JPEG::scan() + JPEG::frame(3, 2) + JPEG::end, std::nullopt},
        {"of two frames", JPEG::file(JPEG::frame(3, 2)), std::nullopt},
        {"with anything between its segments", JPEG::start + "x" + JPEG::frame(3, 2), std::nullopt},
        {"with a mark that means nothing in a scan",
            JPEG::start + JPEG::frame(3, 2) + JPEG::scan("a\xff\x02") + JPEG::end, std::nullopt},
        {"with a segment that is shorter than its length", JPEG::start + "\xff\xdb\0\1"s, std::nullopt},
        {"lossless", JPEG::start + JPEG::frame(3, 2, 0xc3) + JPEG::scan() + JPEG::end, std::nullopt},
        {"of arithmetic coding", JPEG::start + JPEG::frame(3, 2, 0xc9) + JPEG::scan() + JPEG::end,
            std::nullopt},
        {"wider than allowed", JPEG::start + JPEG::frame(4097, 2) + JPEG::scan() + JPEG::end, std::nullopt},
        {"whose height comes later", JPEG::start + JPEG::frame(3, 0) + JPEG::scan() + JPEG::end,
            std::nullopt},
    });
}

TEST(PhotoFile, aWebPIsItsPixelsAlone)
{
    const std::string lossy = WebP::lossy(3, 2);
    const std::string lossless = WebP::lossless(3, 2);
    const std::string alpha = WebP::chunk("ALPH", "odd");
    const std::string more = WebP::chunk("ICCP", "odd") + WebP::chunk("ABCD", "ab");
    const std::string texts = WebP::chunk("EXIF", "a") + WebP::chunk("XMP ", "a");
    expectRows({
        {"lossy", WebP::file(lossy), WebP::file(lossy)},
        {"lossless", WebP::file(lossless), WebP::file(lossless)},
        {"with profile and texts", WebP::file(WebP::extended(0x3c, 3, 2) + more + alpha + lossy + texts),
            WebP::file(WebP::extended(0x10, 3, 2) + alpha + lossy)},
        {"with something after its end", WebP::file(lossy) + "anything", WebP::file(lossy)},
        {"that moves", WebP::file(WebP::extended(0x02, 3, 2) + lossy), std::nullopt},
        {"without pixels", WebP::file(WebP::extended(0, 3, 2) + texts), std::nullopt},
        {"that begins with a text", WebP::file(texts + lossy), std::nullopt},
        {"with a second header", WebP::file(WebP::extended(0, 3, 2) + WebP::extended(0, 3, 2) + lossy),
            std::nullopt},
        {"whose canvas is too wide", WebP::file(WebP::extended(0, 4097, 2) + lossy), std::nullopt},
        {"whose lossy picture is too wide", WebP::file(WebP::lossy(4097, 2)), std::nullopt},
        {"whose lossless picture is too high", WebP::file(WebP::lossless(3, 4097)), std::nullopt},
        {"with a length past its end", "RIFF" + test::littleEndian(0xffffffff, 4) + "WEBP" + lossy,
            std::nullopt},
        {"with a length of nothing", "RIFF" + test::littleEndian(0, 4) + "WEBP" + lossy, std::nullopt},
    });
}

TEST(PhotoFile, whatIsCutShortIsRefusedWhereverItEnds)
{
    expectNoneOfItsBeginnings(PNG::file(PNG::chunk("tEXt", "text")));
    expectNoneOfItsBeginnings(JPEG::file(JPEG::segment(0xfe, "remark"), 2));
    expectNoneOfItsBeginnings(WebP::file(WebP::extended(0x10, 3, 2) + WebP::lossy(3, 2)));
}

TEST(PhotoFile, whatIsNoPhotographIsRefused)
{
    for (const char* bytes : {"", "GIF89a", "BM", "<svg/>", "RIFF", "RIFFabcdWAVE"})
        EXPECT_EQ(PhotoFile::stripped(bytes), std::nullopt) << bytes;
}

TEST(PhotoFile, aFileOfMoreThanAMebibyteIsRefused)
{
    const std::string frame = PNG::file(PNG::chunk("tEXt", {}));
    const std::string text(PhotoFile::largest - frame.size(), ' ');
    EXPECT_EQ(PhotoFile::stripped(PNG::file(PNG::chunk("tEXt", text))), PNG::file());
    EXPECT_EQ(PhotoFile::stripped(PNG::file(PNG::chunk("tEXt", text + ' '))), std::nullopt);
}

} // namespace skyvane
