#include "host/desktop/undo_card.h"

#include "desk/text.h"
#include "host/session/desktop_way.h"
#include "host/session/round_shape.h"
#include "paint/to_qt.h"
#include "paint/widget_card.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWindow>

#include <utility>

namespace skyvane {

namespace {

/// Readable on the card, whatever the desktop's colours are.
QPalette colours()
{
    QPalette palette;
    palette.setColor(QPalette::WindowText, Qt::white);
    return palette;
}

void addButton(QVBoxLayout& rows, const QString& text, std::function<void()> action)
{
    auto* button = new QPushButton{text};
    QObject::connect(button, &QPushButton::clicked, button, std::move(action), Qt::QueuedConnection);
    rows.addWidget(button);
}

} // namespace

/// A button's action comes after its click, since it may delete the card.
UndoCard::UndoCard(
    const QString& name, int width, DesktopWay& way, const Actions& actions, std::function<void()> expired)
    : m_expired(std::move(expired))
{
    const QString text = localizedText("“%1” was removed.", {name.toStdString()});
    setWindowTitle(text);
    auto* words = new QLabel{text};
    words->setTextFormat(Qt::PlainText);
    words->setWordWrap(true);
    words->setPalette(colours());
    auto* rows = new QVBoxLayout{this};
    rows->addWidget(words);
    addButton(*rows, localizedText("&Undo"), actions.undo);
    if (actions.add)
        addButton(*rows, localizedText("&Add Widgets…"), actions.add);
    setFixedWidth(width);
    setFixedHeight(rows->totalHeightForWidth(width));
    way.adopt(*this);
    winId(); // From here on there is a handle.
    m_timer.start(static_cast<int>(std::chrono::milliseconds{patience}.count()), this);
}

void UndoCard::cutCorners()
{
    windowHandle()->setMask(roundShape(size()));
}

void UndoCard::paintEvent(QPaintEvent*)
{
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(toQt(WidgetCard::emptyBackground));
    painter.drawRoundedRect(rect(), WidgetCard::cornerRadius, WidgetCard::cornerRadius);
}

void UndoCard::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId())
        return;
    m_timer.stop();
    m_expired();
}

} // namespace skyvane
