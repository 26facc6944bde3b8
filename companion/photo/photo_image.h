#pragma once

#include <QImage>
#include <QSize>

#include <string_view>

namespace skyvane {

/// How large a photograph is shown, in points.
inline constexpr QSize photoSize{420, 280};

/// A photograph from bytes of any origin: what `PhotoFile` lets pass. Its pixels alone, no more than its
/// place shows of it where a point is three of them. Null for everything else. Any thread may ask.
QImage decodePhoto(std::string_view bytes);

} // namespace skyvane
