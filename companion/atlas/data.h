#pragma once

#include <string_view>

/// The files of data/, which are part of the program.
namespace skyvane::AtlasData {

std::string_view earth();
std::string_view cities();
std::string_view airports();

} // namespace skyvane::AtlasData
