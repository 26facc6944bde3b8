#pragma once

#include "core/enrichment/flight_route.h"

#include <QWidget>

#include <optional>

class QLabel;

namespace skyvane {

/// Where a flight usually goes: airports, cities, and who says so.
class RoutePanel : public QWidget {
    Q_OBJECT
public:
    explicit RoutePanel(QWidget* parent = nullptr);

    /// Hides the panel when there is no route, or one that ends where it began, which is a mistake.
    void showRoute(const std::optional<FlightRoute>& route);

    QString airports() const;
    QString cities() const;

private:
    QLabel* m_airports;
    QLabel* m_cities;
};

} // namespace skyvane
