#pragma once

#include <stdexcept>

namespace skyvane {

/// The extension gave no usable answer; what() says why in words, and may quote what it sent.
struct ExtensionError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

} // namespace skyvane
