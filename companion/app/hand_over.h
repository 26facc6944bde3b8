#pragma once

#include "companion/app/command_line.h"

#include <QDBusConnection>
#include <QString>

namespace skyvane {

/// Has the session's running companion do what this start was for, on behalf of the same click. Whether it
/// answered.
bool handOver(const QDBusConnection& bus, const CommandLine& line, const QString& token);

} // namespace skyvane
