#include "companion/look/details.h"

#include "companion/look/type_scale.h"
#include "desk/text.h"

#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace skyvane {

Details::Details(Qt::Alignment alignment, QWidget* parent)
    : QWidget(parent), m_button(new QToolButton), m_text(new QLabel)
{
    m_button->setText(localizedText("Details"));
    m_button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_button->setAutoRaise(true);
    m_button->setCheckable(true);
    m_button->setFocusPolicy(Qt::StrongFocus);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_text->setAlignment(alignment);
    m_text->setFont(TypeScale::small(font()));
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins({});
    column->setSpacing(4);
    column->addWidget(m_button, 0, alignment);
    column->addWidget(m_text);
    connect(m_button, &QToolButton::toggled, this, &Details::unfold);
    unfold(/*isUnfolded=*/false);
    hide();
}

void Details::showText(const QString& text)
{
    if (text != m_text->text()) {
        m_text->setText(text);
        m_button->setChecked(false);
    }
    setVisible(!text.isEmpty());
}

QString Details::text() const
{
    return m_text->text();
}

void Details::unfold(bool isUnfolded)
{
    const Qt::ArrowType inwards = isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow;
    m_button->setArrowType(isUnfolded ? Qt::DownArrow : inwards);
    m_text->setVisible(isUnfolded);
}

} // namespace skyvane
