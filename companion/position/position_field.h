#pragma once

#include "companion/look/marked_line_edit.h"
#include "companion/position/location_service.h"

#include <QTimer>

class QPushButton;

namespace skyvane {

/// An input field for a position, typed, pasted, or asked of the system with the button beside it.
class PositionField : public QWidget {
    Q_OBJECT
public:
    PositionField(const QDBusConnection& bus, QLabel& note, QWidget* parent = nullptr);

    /// Writes the position into the line, unless the line says it already, or holds something unreadable
    /// while the position is what it was.
    void showPosition(const std::optional<Coordinate>& position);

    MarkedLineEdit& line() { return *m_line; }
    QPushButton& button() { return *m_button; }

signals:
    /// Absent for what cannot be read.
    void typed(const std::optional<skyvane::Coordinate>& position);
    void located(const skyvane::LocationFix& fix); ///< With its position rounded.
    void improving(const skyvane::LocationFix& best); ///< It is waited for a better one.
    void finished(); ///< Enter was pressed, or the line left.

private:
    void read();
    void mark();
    void askOrCancel();
    void showAsking(bool isAsking);

    LocationService m_service;
    std::optional<Coordinate> m_position; ///< As last shown.
    bool m_isReading = false; ///< The line is being read, and not to be rewritten.
    MarkedLineEdit* m_line;
    QPushButton* m_button;
    QTimer m_pause; ///< Debounce: what is typed counts after this pause.
};

} // namespace skyvane
