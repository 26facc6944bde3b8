#pragma once

#include "widgets/extension/confinement.h"

namespace skyvane::Extension {

/// The whole life of the extension's process, on its standard streams. Returns its exit status.
int run(Unlisted unlisted = Unlisted::refused);

} // namespace skyvane::Extension
