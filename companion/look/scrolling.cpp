#include "companion/look/scrolling.h"

#include <QScrollArea>
#include <QVBoxLayout>

namespace skyvane {

void fillScrolling(QWidget& page, QWidget* content)
{
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus); // The keyboard goes to what is in it.
    area->setWidget(content);
    auto* layout = new QVBoxLayout{&page};
    layout->setContentsMargins({});
    layout->addWidget(area);
}

} // namespace skyvane
