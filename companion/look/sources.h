#pragma once

#include <QString>

#include <vector>

class QWidget;

namespace skyvane {

/// Whose data is shown.
enum class Source { firstAggregator, secondAggregator, routeDatabase, photoService };

/// As rich text that links to the source's own page.
QString linkTo(Source source);

/// A quiet line that names and links them.
QWidget* makeSourcesLabel(const std::vector<Source>& sources);

} // namespace skyvane
