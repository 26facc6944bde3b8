#include "companion/aircraft/photo_image.h"

#include <QBuffer>
#include <QImageReader>

#include <cstddef>

namespace skyvane {

namespace {

constexpr std::size_t largestFile = 8 << 20;
constexpr int longestSide = 4096;
constexpr int largestImage = 128; // Mebibytes, decoded.

bool isPhotoFormat(const QByteArray& format)
{
    return format == "jpeg" || format == "jpg" || format == "png" || format == "webp";
}

bool isWithinLimits(const QSize& size)
{
    return size.width() > 0 && size.height() > 0 && size.width() <= longestSide
        && size.height() <= longestSide;
}

} // namespace

QImage decodePhoto(std::string_view bytes)
{
    if (bytes.empty() || bytes.size() > largestFile)
        return {};
    QByteArray data = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer{&data};
    buffer.open(QIODevice::ReadOnly);
    QImageReader::setAllocationLimit(largestImage);
    QImageReader reader{&buffer};
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!isPhotoFormat(reader.format()) || !isWithinLimits(reader.size()))
        return {};
    return reader.read();
}

} // namespace skyvane
