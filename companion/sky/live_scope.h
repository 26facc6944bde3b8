#pragma once

#include "companion/look/measures.h"
#include "companion/map/scope_view.h"
#include "companion/sky/scope_blips.h"
#include "companion/sky/trails.h"
#include "core/views/sky_entry.h"

#include <QPixmap>
#include <QPointF>
#include <QTimer>

#include <optional>
#include <string>
#include <vector>

namespace skyvane {

class TrailOnScope;

/// The scope that answers: the pointer over an aircraft names it, a click selects it, a double click opens
/// it, and so do the arrow keys and Enter. Each aircraft drags the trail of where it was seen. A screen
/// reader finds one link for each.
class LiveScope : public ScopeView {
    Q_OBJECT
public:
    explicit LiveScope(const FontMeasurer& fonts);

    /// With these aircraft, no two of one identity, and their trails, which stay until the next call.
    void showSky(SkyEntry sky, Measures measures, const Trails& trails);

    /// Marks this aircraft; an empty text, or one that is not there, marks none.
    void select(const std::string& hex);

    /// Where an aircraft is on the widget; absent for one that is not there.
    std::optional<QPointF> placeOf(const std::string& hex) const;

    const std::vector<SpokenPart>& parts() const override;
    std::optional<std::size_t> focusedLink() const override;
    void press(std::optional<std::size_t> link) override;

signals:
    /// The user chose this aircraft; an empty text: none.
    void aircraftSelected(const QString& hex);
    void aircraftActivated(const QString& hex);

protected:
    void laidOut() override;
    void mapChanged() override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void hover(std::optional<std::size_t> blip);
    void choose(std::optional<std::size_t> blip);
    void open(std::optional<std::size_t> blip);
    void step(bool isForward);
    QString setApart() const;

    void beginPicture();
    void goOnWithPicture();
    void paintTrail(QPainter& painter, const TrailOnScope& trails, const Blip& blip) const;
    void paintMarks(QPainter& painter) const;
    void paintName(QPainter& painter, const Blip& blip) const;
    QColor colorOf(const Blip& blip) const;

    SkyEntry m_sky = SkyEntry::around(std::nullopt);
    Units m_units;
    const Trails* m_trails = nullptr;
    ScopeBlips m_blips; ///< They point into `m_sky`.
    std::optional<std::size_t> m_hovered;
    std::string m_selected;
    mutable std::optional<std::vector<SpokenPart>> m_parts; ///< Made when a screen reader asks.
    QPixmap m_picture; ///< All but what follows the pointer; null until it is painted.
    std::size_t m_trailed = 0; ///< How many aircraft have their trails in it.
    QTimer m_rest; ///< When more of them are painted: a crowded sky's do not stall the window.
};

} // namespace skyvane
