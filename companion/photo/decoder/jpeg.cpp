#include "companion/photo/byte_reader.h"
#include "companion/photo/decoder/formats.h"

namespace skyvane::PhotoFile {

namespace {

using namespace std::string_view_literals;

constexpr char markerStart = '\xff';

/// The markers of a photograph, each the byte after 0xFF.
enum Marker : unsigned char {
    baseline = 0xc0, // Then extended and progressive.
    progressive = 0xc2,
    huffmanTables = 0xc4,
    firstRestart = 0xd0,
    lastRestart = 0xd7,
    startOfImage = 0xd8,
    endOfImage = 0xd9,
    startOfScan = 0xda,
    quantizationTables = 0xdb,
    restartInterval = 0xdd,
    firstApplication = 0xe0,
    exif = 0xe1,
    adobe = 0xee,
    lastApplication = 0xef,
    comment = 0xfe,
};

bool isFrame(unsigned marker)
{
    return marker >= baseline && marker <= progressive;
}

bool isRestart(unsigned marker)
{
    return marker >= firstRestart && marker <= lastRestart;
}

/// Absent at the end of the file, and where there is something else. Any number of 0xFF may precede one.
std::optional<unsigned> takeMarker(ByteReader& reader)
{
    if (reader.take(1) != "\xff"sv)
        return std::nullopt;
    auto marker = reader.bigEndian(1);
    while (marker == 0xffU)
        marker = reader.bigEndian(1);
    return marker;
}

/// A segment's content, without the length before it.
std::optional<std::string_view> takeSegment(ByteReader& reader)
{
    constexpr std::size_t lengthSize = 2;
    const auto length = reader.bigEndian(lengthSize);
    if (!length || *length < lengthSize)
        return std::nullopt;
    return reader.take(*length - lengthSize);
}

/// The compressed data of a scan, which ends where a marker stands that is neither a restart's nor the
/// escape for a byte of 0xFF. Absent for a file that ends before.
std::optional<std::string_view> takeScanData(ByteReader& reader)
{
    const std::string_view rest = reader.rest();
    for (std::size_t at = rest.find(markerStart); at != std::string_view::npos;
         at = rest.find(markerStart, at)) {
        const std::size_t next = rest.find_first_not_of(markerStart, at);
        if (next == std::string_view::npos)
            return std::nullopt;
        const auto marker = static_cast<unsigned char>(rest[next]);
        if (marker != 0 && !isRestart(marker))
            return reader.take(at);
        at = next;
    }
    return std::nullopt;
}

/// Precision, height, width, and the number of components.
bool isFrameWithinLimits(std::string_view content)
{
    constexpr std::uint32_t mostComponents = 4;
    ByteReader reader{content};
    const auto precision = reader.bigEndian(1);
    const auto height = reader.bigEndian(2);
    const auto width = reader.bigEndian(2);
    const auto components = reader.bigEndian(1);
    return components && precision == 8U && isWithinLimits(*width, *height) && *components <= mostComponents;
}

/// The turn of the camera and the kind of the colours are not in the pixels, but change how they look.
bool isKept(unsigned marker, std::string_view content)
{
    if (marker == exif)
        return content.starts_with("Exif\0\0"sv);
    if (marker == adobe)
        return content.starts_with("Adobe"sv);
    return marker == firstApplication ? content.starts_with("JFIF\0"sv) : marker < firstApplication;
}

bool isKnown(unsigned marker)
{
    switch (marker) {
    case huffmanTables:
    case startOfScan:
    case quantizationTables:
    case restartInterval:
    case comment:
        return true;
    default:
        return isFrame(marker) || (marker >= firstApplication && marker <= lastApplication);
    }
}

/// Takes a file's segments one by one and keeps what a decoder may see of them.
class Walk {
public:
    explicit Walk(std::string_view bytes) : m_reader(bytes) { }

    std::optional<std::string> run()
    {
        if (takeMarker(m_reader) != unsigned{startOfImage})
            return std::nullopt;
        m_kept = "\xff\xd8"sv;
        auto marker = takeMarker(m_reader);
        while (marker && *marker != endOfImage && takeOne(*marker))
            marker = takeMarker(m_reader);
        if (marker != unsigned{endOfImage} || m_scans == 0)
            return std::nullopt;
        return std::move(m_kept) + "\xff\xd9";
    }

private:
    /// Whether it is one that a photograph may have there.
    bool takeOne(unsigned marker)
    {
        const std::string_view start = m_reader.rest();
        const auto content = isKnown(marker) ? takeSegment(m_reader) : std::nullopt;
        if (!content)
            return false;
        if (isFrame(marker) && (++m_frames > 1 || !isFrameWithinLimits(*content)))
            return false;
        if (marker == startOfScan && (m_frames == 0 || ++m_scans > mostScans || !takeScanData(m_reader)))
            return false;
        if (isKept(marker, *content)) {
            m_kept += markerStart;
            m_kept += static_cast<char>(marker);
            m_kept += start.substr(0, start.size() - m_reader.rest().size());
        }
        return true;
    }

    ByteReader m_reader;
    std::string m_kept;
    int m_frames = 0;
    int m_scans = 0;
};

} // namespace

std::optional<std::string> strippedJPEG(std::string_view bytes)
{
    return Walk{bytes}.run();
}

} // namespace skyvane::PhotoFile
