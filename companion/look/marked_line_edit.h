#pragma once

#include <QLineEdit>

class QAction;
class QLabel;

namespace skyvane {

/// A line of input that says at its place what is wrong with it, for the eye and for a screen reader.
class MarkedLineEdit : public QLineEdit {
    Q_OBJECT
public:
    /// `note`: where the words go; hidden while there are none.
    explicit MarkedLineEdit(QLabel& note, QWidget* parent = nullptr);

    /// Empty: nothing is wrong.
    void setProblem(const QString& problem);
    const QString& problem() const { return m_problem; }

    /// Words that are no complaint. A problem takes their place.
    void setRemark(const QString& remark);

private:
    void showNote();

    QLabel& m_note;
    QAction* m_mark;
    QString m_problem;
    QString m_remark;
};

/// The label that such a line speaks through.
QLabel* makeNote();

} // namespace skyvane
