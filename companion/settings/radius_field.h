#pragma once

#include "companion/look/marked_line_edit.h"

#include <optional>
#include <string>

class QSlider;

namespace skyvane {

/// A radius in nautical miles, on a slider and as a number, with what it is in another unit beside it.
class RadiusField : public QWidget {
    Q_OBJECT
public:
    explicit RadiusField(QLabel& note, QWidget* parent = nullptr);

    void showRadius(double radiusNM, const std::string& unit);

    QSlider& slider() { return *m_slider; }
    MarkedLineEdit& number() { return *m_number; }

    /// Whole or with decimals, in the user's locale or with a point. Absent for what is no radius.
    static std::optional<double> read(const QString& text);

signals:
    void slid(double radiusNM);
    void typed(std::optional<double> radiusNM); ///< Absent for what is no radius.
    void finished(); ///< The slider was released, Enter pressed, or the number left.

private:
    void readNumber();

    double m_radiusNM = 0; ///< As last shown.
    bool m_isReading = false; ///< The number is being read, and not to be rewritten.
    QSlider* m_slider;
    MarkedLineEdit* m_number;
    QLabel* m_inOtherUnit;
};

} // namespace skyvane
