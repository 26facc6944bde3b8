#pragma once

#include <QString>

/// Well-known names of the programs on the session's message bus. Desktop entries and icons are named alike.
namespace skyvane::BusName {

QString host();
QString companion();

/// Path of the one object behind a name: the name's words after slashes.
QString path(QString name);

} // namespace skyvane::BusName
