#pragma once

#include "companion/look/marked_line_edit.h"
#include "companion/position/location_service.h"

#include <QTimer>

class QPushButton;

namespace skyvane {

/// A line with a position in it, typed, pasted, or asked of the system with the button beside it.
class PositionField : public QWidget {
    Q_OBJECT
public:
    PositionField(const QDBusConnection& bus, QLabel& note, QWidget* parent = nullptr);

    /// Leaves the line as it is where it says so already, or where it holds something unreadable and the
    /// position is what it was.
    void showPosition(const std::optional<Coordinate>& position);

    MarkedLineEdit& line() { return *m_line; }
    QPushButton& button() { return *m_button; }

signals:
    /// Absent for what cannot be read.
    void typed(const std::optional<skyvane::Coordinate>& position);
    void located(const skyvane::Coordinate& position);
    void finished(); ///< With typing, for now.

private:
    void read();
    void mark();
    void askOrCancel();
    void showAsking(bool isAsking);

    LocationService m_service;
    std::optional<Coordinate> m_position; ///< As last shown.
    bool m_isReading = false; ///< So that what is typed is left as it is.
    MarkedLineEdit* m_line;
    QPushButton* m_button;
    QTimer m_pause; ///< Of typing, after which what is there counts as meant.
};

} // namespace skyvane
