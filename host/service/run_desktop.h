#pragma once

#include "host/desktop/companion.h"
#include "host/desktop/desktop.h"

namespace skyvane {

/// By whom the host was started, other than the user.
struct HostStart {
    bool isSupervised = false; ///< By the log-in, or the companion's switch.
    bool isRestart = false; ///< By its supervisor, after a failure.
    bool isInShell = false; ///< By a shell that places its windows.
};

/// The user's own desktop, with these programs.
DesktopSetup standardSetup(const Companion& companion);

/// Shows the widgets until the user quits; where a host of this session shows them already, has that one show
/// its gallery, but not when a supervisor has started this one anew. A shell that shows the widgets itself is
/// left to it. Returns the exit status. Needs a QApplication.
int runDesktop(const ExtensionProgram& program, const DesktopSetup& setup, const HostStart& start = {});

} // namespace skyvane
