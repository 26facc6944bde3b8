#pragma once

#include "bench/field/report.h"
#include "tests/session/x_session.h"

#include <filesystem>
#include <vector>

namespace skyvane::bench {

/// The programs that are measured, and those beside them.
struct Programs {
    std::filesystem::path launch;
    std::filesystem::path extension;
    std::filesystem::path host;
    std::filesystem::path hello;
    std::filesystem::path emptyWindow;
    std::filesystem::path refresher; ///< This program itself.
};

using Rows = std::vector<Row>;

/// In this process. Need an application of the toolkit.
Rows decodeRows();
Rows sortRows();
Rows widgetRows();

/// In processes of their own. Need the feed of `OwnWorld`.
Rows timelineRows(const Programs& programs);
Rows startRows(const Programs& programs);
Rows coldStartRows(const Programs& programs, const test::XSession& session);
Rows idleRows(const Programs& programs, const test::XSession& session);
Rows refreshRows(const Programs& programs);

} // namespace skyvane::bench
