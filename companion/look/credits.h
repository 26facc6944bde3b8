#pragma once

#include <QString>

#include <string>
#include <vector>

class QLabel;

/// Whose data is shown, with links to their own pages.
namespace skyvane::Credits {

/// What is said of a source in a word or two.
struct Remark {
    std::string source; ///< Its host.
    QString text;
};

/// The sources' names as rich text, in the order in which they are asked, each with its remark if it has one.
QString aircraft(const std::vector<Remark>& remarks = {});
QString routes();
QString photos();

/// Who made the map, the cities and the airports that the program brings along.
QString places();

/// The photo service's name alone, plain text.
QString photoService();

/// A line of quiet text that names the sources.
QLabel* makeLabel(const QString& sources);
/// The same in words, for another text of that label.
QString text(const QString& sources);

} // namespace skyvane::Credits
