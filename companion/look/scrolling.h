#pragma once

class QWidget;

namespace skyvane {

/// Makes the content all that a page holds; it scrolls where there is no room for all of it.
void fillScrolling(QWidget& page, QWidget* content);

} // namespace skyvane
