#pragma once

#include <QString>

/// Well-known names on the session's message bus. Desktop entries and icons are named as the programs are.
namespace skyvane::BusName {

QString host();
QString companion();
/// A desktop's shell that shows the widgets itself, or places the host's windows, where there is one.
QString shell();
/// The desktop portal, where there is one; its object is at `portalPath`.
QString portal();
QString portalPath();

/// Path of the one object behind a name: the name's words after slashes.
QString path(QString name);

} // namespace skyvane::BusName
