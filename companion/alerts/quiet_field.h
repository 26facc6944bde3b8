#pragma once

#include "desk/alerts/alert_choices.h"

#include <QWidget>

class QCheckBox;
class QTimeEdit;

namespace skyvane {

/// Whether quiet hours are kept, and from when until when.
class QuietField : public QWidget {
    Q_OBJECT
public:
    explicit QuietField(QWidget* parent = nullptr);

    void show(bool isQuiet, const QuietHours& hours);

signals:
    void chosen(bool isQuiet, const skyvane::QuietHours& hours);

private:
    void tell();

    QCheckBox* m_box;
    QTimeEdit* m_from;
    QTimeEdit* m_until;
};

} // namespace skyvane
