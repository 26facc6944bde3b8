#pragma once

#include <QWidget>

class QButtonGroup;

namespace skyvane {

/// A row of choices of which one holds.
class ChoiceRow : public QWidget {
    Q_OBJECT
public:
    explicit ChoiceRow(const QStringList& names, QWidget* parent = nullptr);

    void showChoice(int place);

signals:
    void placeChosen(int place);

private:
    QButtonGroup* m_buttons;
};

} // namespace skyvane
