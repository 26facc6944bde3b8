#pragma once

#include <QImage>
#include <QSize>

#include <filesystem>
#include <functional>
#include <stop_token>
#include <string_view>

namespace skyvane {

/// How large a photograph is shown, in points.
inline constexpr QSize photoSize{420, 280};

/// Decodes a photograph's file; null for everything else, and at once when `stop` asks for it. Any thread may
/// call it.
using DecodePhoto = std::function<QImage(std::string_view file, const std::stop_token& stop)>;

/// Decodes bytes from strangers in a child process, this program: the pixels alone, three a point of
/// `photoSize` at most.
DecodePhoto decodePhotoBy(std::filesystem::path program);

} // namespace skyvane
