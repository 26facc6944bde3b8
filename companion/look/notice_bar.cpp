#include "companion/look/notice_bar.h"

#include "companion/look/details.h"
#include "companion/look/reading_direction.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace skyvane {

NoticeBar::NoticeBar(const QString& actionText, QWidget* parent)
    : QFrame(parent)
    , m_text(new QLabel)
    , m_details(new Details{Qt::AlignLeft})
    , m_action(new QPushButton{actionText})
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    m_text->setWordWrap(true);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins(inReadingDirection({14, 8, 8, 8}));
    row->setSpacing(12);
    auto* column = new QVBoxLayout;
    column->setSpacing(2);
    column->addWidget(m_text);
    column->addWidget(m_details);
    row->addLayout(column, /*stretch=*/1);
    row->addWidget(m_action);
    connect(m_action, &QPushButton::clicked, this, &NoticeBar::actionTriggered);
    hide();
}

void NoticeBar::show(const Words& words)
{
    m_text->setText(words.text);
    m_details->showText(words.details);
    setAccessibleName(words.text);
    setVisible(!words.text.isEmpty());
}

QString NoticeBar::text() const
{
    return m_text->text();
}

} // namespace skyvane
