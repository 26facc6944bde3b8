#include "companion/photo/photo_image.h"

#include "companion/photo/photo_file.h"

#include <QBuffer>
#include <QImageReader>

namespace skyvane {

namespace {

constexpr QSize mostShown = photoSize * 3;

/// Within the process once: the limit is no thread's own.
void limitMemory()
{
    constexpr int largestImage = 64; // Mebibytes, decoded: 4,096 pixels square.
    static const bool isLimited = [] {
        QImageReader::setAllocationLimit(largestImage);
        return true;
    }();
    Q_UNUSED(isLimited);
}

bool isWithinLimits(const QSize& size)
{
    constexpr int longestSide = PhotoFile::longestSide;
    return !size.isEmpty() && size.width() <= longestSide && size.height() <= longestSide;
}

/// The least size that still fills the place, in the file's own orientation; that of the file where it is
/// smaller.
QSize sufficientSize(const QImageReader& reader)
{
    const bool isTurned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const QSize size = reader.size();
    const QSize filling
        = size.scaled(isTurned ? mostShown.transposed() : mostShown, Qt::KeepAspectRatioByExpanding);
    return filling.width() < size.width() ? filling : size;
}

/// A copy of the middle, without the image's texts, resolution and colour space.
QImage pixelsOf(const QImage& image)
{
    constexpr int bytesOfPixel = 4;
    if (image.isNull())
        return {};
    const QImage plain = image.convertToFormat(
        image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    const QSize shown = plain.size().boundedTo(mostShown);
    const QSize margin = (plain.size() - shown) / 2;
    const uchar* const corner = plain.constScanLine(margin.height()) + margin.width() * bytesOfPixel;
    return QImage{corner, shown.width(), shown.height(), plain.bytesPerLine(), plain.format()}.copy();
}

} // namespace

QImage decodePhoto(std::string_view bytes)
{
    const auto file = PhotoFile::stripped(bytes);
    if (!file)
        return {};
    QByteArray data = QByteArray::fromRawData(file->data(), static_cast<qsizetype>(file->size()));
    QBuffer buffer{&data};
    buffer.open(QIODevice::ReadOnly);
    limitMemory();
    QImageReader reader{&buffer};
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (!isWithinLimits(reader.size()))
        return {};
    reader.setScaledSize(sufficientSize(reader));
    return pixelsOf(reader.read());
}

} // namespace skyvane
