#pragma once

#include "companion/map/map_data.h"

#include <QObject>

#include <thread>

namespace skyvane {

/// Brings a map's data, which are made when somebody first looks at a map, on a thread of their own.
class MapLoader : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    /// Null until `loaded`; the first call begins to load.
    const MapData* data();

signals:
    void loaded();

private:
    const MapData* m_data = nullptr;
    std::jthread m_thread;
};

} // namespace skyvane
