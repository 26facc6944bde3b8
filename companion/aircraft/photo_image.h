#pragma once

#include <QImage>

#include <string_view>

namespace skyvane {

/// A photograph from bytes of any origin: JPEG, PNG or WebP, at most 4,096 pixels a side, which is looked at
/// before anything is decoded. Null for everything else. Any thread may ask.
QImage decodePhoto(std::string_view bytes);

} // namespace skyvane
