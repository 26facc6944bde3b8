#pragma once

#include "core/config/scope_palette.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace skyvane {

/// A colour for the widgets that is offered by name.
struct Accent {
    std::optional<std::string> hex; ///< Absent: the standard colour.
    QString name;
};

/// The standard colour and others. The emergency red and the military's amber stand out on each, and small
/// texts can be read in it: at full strength a hue other than green is too dark for both.
std::vector<Accent> offeredAccents();

/// Whether the widgets' small texts have the contrast that accessibility guidelines ask for.
bool isEasyToRead(const ScopePalette& palette);

} // namespace skyvane
