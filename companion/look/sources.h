#pragma once

#include <QString>

#include <vector>

class QWidget;

namespace skyvane {

/// Whose data is shown.
enum class Source { firstAggregator, secondAggregator, routeDatabase, photoService };

/// The source's name as rich text that links to its own page.
QString linkTo(Source source);

/// A line of quiet text that names these sources and links to them.
QWidget* makeSourcesLabel(const std::vector<Source>& sources);

} // namespace skyvane
