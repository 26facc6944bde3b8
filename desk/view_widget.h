#pragma once

#include "paint/font_measurer.h"
#include "platform/net/url.h"
#include "ui/layout/display_list.h"
#include "ui/tree/view.h"

#include <QWidget>

namespace skyvane {

/// Shows a view in the middle of whatever size it is given, as a widget's rounded card or bare. Its links
/// take part in the tab order; without any it takes no focus. A screen reader hears its texts as the
/// description.
class ViewWidget : public QWidget {
    Q_OBJECT
public:
    explicit ViewWidget(const FontMeasurer& fonts, QWidget* parent = nullptr);

    void showBare(View view);

    /// On a card of this colour, inside the margins that a widget has.
    void showCard(View view, const Color& background);

signals:
    /// Of any scheme: to be looked at before it is opened.
    void linkActivated(const skyvane::URL& url);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool isNext) override;

private:
    void show(View view, std::optional<Color> card);
    void layOut();
    double margin() const;
    QRectF frameOf(std::size_t link) const;
    std::optional<std::size_t> linkAt(QPointF place) const;

    const FontMeasurer& m_fonts;
    std::optional<View> m_view;
    std::optional<Color> m_card; ///< Absent when bare.
    DisplayList m_list{}; ///< Without the margins.
    std::optional<std::size_t> m_pressedLink;
    std::optional<std::size_t> m_focusedLink;
};

} // namespace skyvane
