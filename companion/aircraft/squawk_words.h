#pragma once

#include <QString>

#include <string_view>

namespace skyvane {

/// A transponder code, and what it means where it means something everywhere: "7000 · visual flight".
QString squawkText(std::string_view squawk);

} // namespace skyvane
