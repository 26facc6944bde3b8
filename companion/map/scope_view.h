#pragma once

#include "companion/map/map_loader.h"
#include "core/views/sky_entry.h"
#include "desk/display_list_view.h"

namespace skyvane {

/// The scope on its card, with the map of the ground below it where that is wanted.
class ScopeView : public DisplayListView {
    Q_OBJECT
public:
    explicit ScopeView(const FontMeasurer& fonts);

    void showSky(const SkyEntry& entry);
    void setMapShown(bool isShown);

protected:
    void paintUnder(QPainter& painter, const DisplayList& list) override;

private:
    MapLoader m_loader;
    std::optional<HomeLocation> m_home;
    double m_radiusNM = 0;
    ScopePalette m_palette = ScopePalette::standard();
    bool m_isMapShown = false;
};

} // namespace skyvane
