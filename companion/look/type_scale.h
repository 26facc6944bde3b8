#pragma once

#include <QFont>

class QWidget;

/// The sizes of type that the pages are set in, all in proportion to the user's own.
namespace skyvane::TypeScale {

QFont display(const QFont& own); ///< For the largest text of a page.
QFont title(const QFont& own);
QFont strong(const QFont& own);
QFont small(const QFont& own);

/// Gives a widget the palette's quiet text colour, and again when the palette changes.
void makeQuiet(QWidget& widget);

} // namespace skyvane::TypeScale
