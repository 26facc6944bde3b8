#pragma once

#include <span>

/// The system calls that the sandbox's seccomp filter refuses, by their names.
namespace skyvane::Extension::ShutDoors {

std::span<const char* const> forbidden();

/// Those for which the libraries try an older call when the kernel seems not to know them.
std::span<const char* const> unheardOf();

/// Newer than the filter's library.
std::span<const int> forbiddenWithoutName();

} // namespace skyvane::Extension::ShutDoors
