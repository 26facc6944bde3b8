#include "companion/map/map_loader.h"

namespace skyvane {

namespace {

/// Made once, whoever asks first.
const MapData& shared()
{
    static const MapData data = MapData::load();
    return data;
}

} // namespace

const MapData* MapLoader::data()
{
    if (m_data != nullptr || m_thread.joinable())
        return m_data;
    m_thread = std::jthread{[this] {
        const MapData& data = shared();
        QMetaObject::invokeMethod(this, [this, &data] {
            m_data = &data;
            emit loaded();
        });
    }};
    return nullptr;
}

} // namespace skyvane
