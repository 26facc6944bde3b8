#include "companion/sky/empty_sky.h"

#include "companion/look/details.h"
#include "companion/look/type_scale.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace skyvane {

EmptySky::EmptySky(QWidget* parent)
    : QWidget(parent)
    , m_title(new QLabel)
    , m_explanation(new QLabel)
    , m_details(new Details{Qt::AlignCenter})
    , m_action(new QPushButton)
{
    m_title->setFont(TypeScale::title(font()));
    for (QLabel* label : {m_title, m_explanation}) {
        label->setTextFormat(Qt::PlainText);
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
    }
    TypeScale::makeQuiet(*m_explanation);
    m_explanation->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(32, 32, 32, 32);
    column->setSpacing(8);
    column->addStretch();
    column->addWidget(m_title);
    column->addWidget(m_explanation);
    column->addWidget(m_details);
    column->addSpacing(8);
    column->addWidget(m_action, 0, Qt::AlignCenter);
    column->addStretch();
    setFocusProxy(m_action);
    connect(m_action, &QPushButton::clicked, this, &EmptySky::actionTriggered);
}

void EmptySky::show(const Words& words)
{
    m_title->setText(words.title);
    m_explanation->setText(words.explanation);
    m_details->showText(words.details);
    m_action->setText(words.action);
    m_action->setVisible(!words.action.isEmpty());
}

QString EmptySky::title() const
{
    return m_title->text();
}

QString EmptySky::explanation() const
{
    return m_explanation->text();
}

} // namespace skyvane
