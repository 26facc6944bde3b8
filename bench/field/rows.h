#pragma once

#include "bench/field/own_world.h"
#include "bench/field/report.h"

#include <filesystem>
#include <vector>

namespace skyvane::bench {

/// The programs that are measured, and those beside them.
struct Programs {
    std::filesystem::path launch;
    std::filesystem::path extension;
    std::filesystem::path host;
    std::filesystem::path companion;
    std::filesystem::path desktopTurns;
    std::filesystem::path skyTurns;
    std::filesystem::path paceTurns;
    std::filesystem::path hello;
    std::filesystem::path emptyWindow;
};

using Rows = std::vector<Row>;

/// In this process. Need an application of the toolkit.
Rows decodeRows();
Rows widgetRows();

/// In processes of their own, in the world that answers them.
Rows refreshRows(const Programs& programs, const OwnWorld& world);
Rows timelineRows(const Programs& programs);
Rows extensionStartRows(const Programs& programs);
Rows hostStartRows(const Programs& programs);
Rows hostRestRows(const Programs& programs);
Rows companionStartRows(const Programs& programs);
Rows companionRestRows(const Programs& programs, const OwnWorld& world);
Rows companionHourRows(const Programs& programs);
Rows companionPaceRows(const Programs& programs);

} // namespace skyvane::bench
