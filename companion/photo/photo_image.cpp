#include "companion/photo/photo_image.h"

#include "companion/photo/answer.h"
#include "companion/photo/child.h"

#include <utility>

namespace skyvane {

namespace {

static_assert(photoSize * 3 == QSize(PhotoAnswer::widest, PhotoAnswer::highest));

QImage imageOf(const Pixels& pixels)
{
    const QImage borrowed{reinterpret_cast<const uchar*>(pixels.list.data()), static_cast<int>(pixels.width),
        static_cast<int>(pixels.height), QImage::Format_RGBA8888};
    return borrowed.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

DecodePhoto decodePhotoBy(std::filesystem::path program)
{
    return [program = std::move(program)](std::string_view file, const std::stop_token& stop) {
        const auto pixels = decodedInChild(program, file, stop);
        return pixels ? imageOf(*pixels) : QImage{};
    };
}

} // namespace skyvane
