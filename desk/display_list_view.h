#pragma once

#include "desk/spoken_view.h"
#include "paint/font_measurer.h"
#include "platform/net/url.h"
#include "ui/layout/display_list.h"
#include "ui/tree/view.h"

#include <QWidget>

#include <functional>

class QPainter;

namespace skyvane {

/// The one widget that shows a display list: a view laid out on a rounded card of whatever size it is given.
/// Where it can be pressed, Tab goes over the whole and each link with a focus ring, and Enter presses. A
/// screen reader finds its texts and links as children. Mirrored where the widget's layout direction is from
/// right to left.
class DisplayListView : public QWidget, public SpokenView {
    Q_OBJECT
public:
    /// Told of a tap or Enter, with the link's URL, of any scheme; null beside all links.
    using Pressed = std::function<void(const URL* link)>;

    /// Without `pressed` it is a picture: it takes neither focus nor pointer, and its links are left out.
    explicit DisplayListView(const FontMeasurer& fonts, Pressed pressed = {});

    void showEmptyCard();
    /// `state`: a sentence that a screen reader says before the texts, if any.
    void showCard(View view, const Color& background, const QString& state = {});

    /// The focus ring around the focused link or the whole.
    void setFocusShown(bool isShown);

    const std::vector<SpokenPart>& parts() const override { return m_parts; }
    std::optional<std::size_t> focusedLink() const override { return m_focusedLink; }
    bool isPressable() const override { return m_pressed != nullptr; }
    void press(std::optional<std::size_t> link) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool isNext) override;

    /// Called where Tab has come to the end of the links. Whether the keyboard went elsewhere; else it goes
    /// round again.
    virtual bool passKeyboard(bool isNext) { return QWidget::focusNextPrevChild(isNext); }

    /// Called when the view is laid out anew, before a screen reader is told of its parts.
    virtual void laidOut() { }
    const DisplayList& list() const { return m_list; }

    /// The card, what lies under its content, and the content. Something has been shown.
    void paintCard(QPainter& painter);
    void paintFocus(QPainter& painter) const;

    /// The card's colour; absent before anything is shown.
    const std::optional<Color>& background() const { return m_background; }

    /// Paints what lies between the card and its content: nothing, unless a subclass has something.
    virtual void paintUnder(QPainter& painter, const DisplayList& list);

    /// What is under way with the pointer is no tap after all.
    void dropTap() { m_tap.reset(); }

private:
    /// What a tap began on: a link, by its URL, since content may change meanwhile, or the card beside all.
    struct Target {
        std::optional<URL> link;

        bool operator==(const Target&) const = default;
    };

    void layOut();
    void describe();
    std::optional<std::size_t> linkAt(QPointF place) const;
    std::optional<Target> targetAt(QPointF place) const;
    void focusLink(std::optional<std::size_t> link);

    const FontMeasurer& m_fonts;
    Pressed m_pressed;
    std::optional<View> m_view;
    std::optional<Color> m_background;
    QString m_state;
    DisplayList m_list{};
    std::vector<SpokenPart> m_parts;
    std::optional<Target> m_tap;
    std::optional<std::size_t> m_focusedLink;
    bool m_isFocusShown = false;
};

} // namespace skyvane
