#pragma once

#include <QImage>
#include <QSize>

#include <string_view>

namespace skyvane {

/// How large a photograph is shown, in points.
inline constexpr QSize photoSize{420, 280};

/// Decodes bytes from strangers, as far as `PhotoFile` lets them pass: the pixels alone, scaled down to three
/// a point of `photoSize`. Null for everything else. Any thread may call it.
QImage decodePhoto(std::string_view bytes);

} // namespace skyvane
