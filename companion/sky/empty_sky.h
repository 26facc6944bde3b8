#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace skyvane {

class Details;

/// Empty state: a title, an explanation and a button in place of the list.
class EmptySky : public QWidget {
    Q_OBJECT
public:
    struct Words {
        QString title;
        QString explanation{}; ///< Plain text, whatever it holds.
        QString action{}; ///< Of the button; empty: none.
        QString details{}; ///< What was said to the letter; may be empty.

        bool operator==(const Words&) const = default;
    };

    explicit EmptySky(QWidget* parent = nullptr);

    void show(const Words& words);
    QString title() const;
    QString explanation() const;

signals:
    void actionTriggered();

private:
    QLabel* m_title;
    QLabel* m_explanation;
    Details* m_details;
    QPushButton* m_action;
};

} // namespace skyvane
