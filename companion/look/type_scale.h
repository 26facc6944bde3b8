#pragma once

#include <QFont>

class QWidget;

/// The sizes of type that the pages are set in, all in proportion to the user's own.
namespace skyvane::TypeScale {

QFont display(const QFont& own); ///< The one name on a page.
QFont title(const QFont& own);
QFont strong(const QFont& own);
QFont small(const QFont& own);

/// Sets a widget's text back behind the rest, for as long as the palette is this one or another.
void makeQuiet(QWidget& widget);

} // namespace skyvane::TypeScale
