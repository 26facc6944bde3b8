#pragma once

#include <QLineEdit>

class QAction;
class QLabel;

namespace skyvane {

/// An input field with validation: it marks itself and shows a message where what is typed is wrong, for the
/// eye and for a screen reader.
class MarkedLineEdit : public QLineEdit {
    Q_OBJECT
public:
    /// `note`: the label that shows the message; hidden while there is none.
    explicit MarkedLineEdit(QLabel& note, QWidget* parent = nullptr);

    /// Shows the mark and this message; an empty one takes both away.
    void setProblem(const QString& problem);
    const QString& problem() const { return m_problem; }

    /// Shows a hint, as long as there is no problem.
    void setRemark(const QString& remark);

private:
    void showNote();

    QLabel& m_note;
    QAction* m_mark;
    QString m_problem;
    QString m_remark;
};

/// A label for the messages of such fields.
QLabel* makeNote();

} // namespace skyvane
