#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace skyvane {

/// One line that says what is wrong, and a button that does something about it. Hidden while nothing is.
class NoticeBar : public QFrame {
    Q_OBJECT
public:
    explicit NoticeBar(const QString& actionText, QWidget* parent = nullptr);

    /// Hides for an empty text. Plain text, whatever it holds.
    void showText(const QString& text);

    QString text() const;

signals:
    void actionTriggered();

private:
    QLabel* m_text;
    QPushButton* m_action;
};

} // namespace skyvane
