#pragma once

#include "companion/map/map_loader.h"
#include "core/radar/radar_view.h"
#include "core/views/sky_entry.h"
#include "desk/display_list_view.h"

namespace skyvane {

/// The scope on its card, with the map of the ground below it where that is wanted.
class ScopeView : public DisplayListView {
    Q_OBJECT
public:
    explicit ScopeView(const FontMeasurer& fonts, Pressed pressed = {});

    /// `state` as in `showCard`.
    void showScope(const RadarView& scope, const QString& state = {});
    void setMapShown(bool isShown);

protected:
    void paintUnder(QPainter& painter, const DisplayList& list) override;

    /// Called when the map below is another one.
    virtual void mapChanged() { update(); }

private:
    MapLoader m_loader;
    std::optional<HomeLocation> m_home;
    double m_radiusNM = 0;
    ScopePalette m_palette = ScopePalette::standard();
    bool m_isMapShown = false;
};

} // namespace skyvane
