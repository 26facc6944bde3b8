#pragma once

#include "core/config/scope_palette.h"
#include "ui/tree/view.h"

namespace skyvane {

/// What every widget shows until the user has set a home.
struct SetupPrompt {
    ScopePalette palette = ScopePalette::standard();

    View body() const;
};

} // namespace skyvane
