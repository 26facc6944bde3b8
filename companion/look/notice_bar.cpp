#include "companion/look/notice_bar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace skyvane {

NoticeBar::NoticeBar(const QString& actionText, QWidget* parent)
    : QFrame(parent), m_text(new QLabel), m_action(new QPushButton{actionText})
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins(14, 8, 8, 8);
    row->setSpacing(12);
    row->addWidget(m_text, /*stretch=*/1);
    row->addWidget(m_action);
    connect(m_action, &QPushButton::clicked, this, &NoticeBar::actionTriggered);
    hide();
}

void NoticeBar::showText(const QString& text)
{
    m_text->setText(text);
    setAccessibleName(text);
    setVisible(!text.isEmpty());
}

QString NoticeBar::text() const
{
    return m_text->text();
}

} // namespace skyvane
