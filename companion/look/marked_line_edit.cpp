#include "companion/look/marked_line_edit.h"

#include "companion/look/type_scale.h"

#include <QAction>
#include <QLabel>
#include <QStyle>

namespace skyvane {

MarkedLineEdit::MarkedLineEdit(QLabel& note, QWidget* parent)
    : QLineEdit(parent)
    , m_note(note)
    , m_mark(addAction(style()->standardIcon(QStyle::SP_MessageBoxWarning), QLineEdit::TrailingPosition))
{
    m_mark->setVisible(false);
}

void MarkedLineEdit::setProblem(const QString& problem)
{
    m_problem = problem;
    showNote();
}

void MarkedLineEdit::setRemark(const QString& remark)
{
    m_remark = remark;
    showNote();
}

void MarkedLineEdit::showNote()
{
    const QString& text = m_problem.isEmpty() ? m_remark : m_problem;
    m_mark->setVisible(!m_problem.isEmpty());
    m_mark->setToolTip(m_problem);
    m_note.setText(text);
    m_note.setVisible(!text.isEmpty());
    m_note.setForegroundRole(m_problem.isEmpty() ? QPalette::PlaceholderText : QPalette::WindowText);
    setAccessibleDescription(text);
}

QLabel* makeNote()
{
    auto* note = new QLabel;
    note->setTextFormat(Qt::PlainText);
    note->setWordWrap(true);
    note->setFont(TypeScale::small(note->font()));
    note->hide();
    return note;
}

} // namespace skyvane
