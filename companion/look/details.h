#pragma once

#include <QWidget>

class QLabel;
class QToolButton;

namespace skyvane {

/// What stands behind a sentence, to the letter, unfolded by a button. Hidden while there is nothing.
class Details : public QWidget {
    Q_OBJECT
public:
    explicit Details(Qt::Alignment alignment, QWidget* parent = nullptr);

    /// Plain text, whatever it holds. Another text is folded away.
    void showText(const QString& text);

    QString text() const;

private:
    void unfold(bool isUnfolded);

    QToolButton* m_button;
    QLabel* m_text;
};

} // namespace skyvane
