#pragma once

#include <QFrame>

class QLabel;
class QPushButton;

namespace skyvane {

class Details;

/// One line that says what is wrong, and a button that does something about it. Hidden while nothing is.
class NoticeBar : public QFrame {
    Q_OBJECT
public:
    struct Words {
        QString text{}; ///< Plain text, whatever it holds; empty: nothing is wrong.
        QString details{}; ///< What was said of it to the letter; may be empty.
    };

    explicit NoticeBar(const QString& actionText, QWidget* parent = nullptr);

    void show(const Words& words);

    QString text() const;

signals:
    void actionTriggered();

private:
    QLabel* m_text;
    Details* m_details;
    QPushButton* m_action;
};

} // namespace skyvane
