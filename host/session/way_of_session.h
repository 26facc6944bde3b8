#pragma once

#include "host/session/desktop_way.h"

#include <memory>

namespace skyvane {

/// The way of this session's desktop, chosen by what the desktop says it can do and never by its name or
/// version. Needs a QApplication.
std::unique_ptr<DesktopWay> wayOfSession();

} // namespace skyvane
