#pragma once

#include "companion/app/command_line.h"

#include <QDBusConnection>
#include <QString>

namespace skyvane {

/// Single instance: asks the session's running companion to do what this start was for, on behalf of the same
/// click. Returns whether it answered.
bool handOver(const QDBusConnection& bus, const CommandLine& line, const QString& token);

} // namespace skyvane
