#pragma once

#include <QString>

class QWidget;

/// Whose data is shown, with links to their own pages.
namespace skyvane::Credits {

/// The sources' names as rich text, in the order in which they are asked.
QString aircraft();
QString routes();
QString photos();

/// Who made the map, the cities and the airports that the program brings along.
QString places();

/// The photo service's name alone, plain text.
QString photoService();

/// A line of quiet text that names the sources.
QWidget* makeLabel(const QString& sources);

} // namespace skyvane::Credits
