#pragma once

#include "host/desktop/companion.h"
#include "host/desktop/desktop.h"

namespace skyvane {

/// The user's own desktop, with these programs.
DesktopSetup standardSetup(const Companion& companion);

/// Shows the widgets until the user quits; where a host of this session shows them already, has that one show
/// its gallery, but not when a supervisor has started this one anew. Returns the exit status. Needs a
/// QApplication.
int runDesktop(const ExtensionProgram& program, const DesktopSetup& setup, bool isRestart = false);

} // namespace skyvane
