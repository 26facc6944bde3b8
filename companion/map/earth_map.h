#pragma once

#include "companion/map/map_loader.h"
#include "companion/map/map_scene.h"

#include <QWidget>

#include <optional>

class QToolButton;

namespace skyvane {

/// A map to choose home on: dragged, zoomed by wheel, buttons or keys, chosen by a click, or by Enter, which
/// takes the middle. It shows home with its radius until it is moved.
class EarthMap : public QWidget {
    Q_OBJECT
public:
    explicit EarthMap(QWidget* parent = nullptr);

    void showSubject(const MapSubject& subject);

    /// What it shows at the moment.
    MapFrame frame() const;
    bool isReady() const { return m_isReady; } ///< Whether it has anything to show yet.

    QSize sizeHint() const override { return {520, 260}; }
    QSize minimumSizeHint() const override { return {200, 180}; }

signals:
    void homeChosen(const skyvane::Coordinate& position);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QToolButton* makeButton(const QString& text, const QString& name);
    void fit();
    void moveBy(const QPointF& points);
    void zoom(double factor, const QPointF& fixed);
    void choose(const QPointF& place);
    MapInk ink() const;

    MapLoader m_loader;
    MapSubject m_subject;
    Coordinate m_middle{.latitude = 20, .longitude = 10};
    double m_pointsPerNM = 0.04;
    bool m_isMoved = false; ///< By the user, since it was last fitted.
    bool m_isReady = false;
    std::optional<QPointF> m_pressed; ///< Where the pointer went down.
    std::optional<QPointF> m_dragged; ///< Where it was last, once it drags.
    QToolButton* m_nearer;
    QToolButton* m_farther;
    QToolButton* m_back;
};

} // namespace skyvane
