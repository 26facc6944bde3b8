#pragma once

#include <QRect>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

class QPoint;
class QScreen;
class QWidget;

namespace skyvane {

/// A desktop's way to have windows that are parts of it: below all others, on every workspace, in no list of
/// windows. This one is the way of a display that has no desktop, or says nothing about it; those of window
/// managers and compositors are derived from it.
class DesktopWay {
public:
    DesktopWay() = default;
    virtual ~DesktopWay() = default;
    DesktopWay(const DesktopWay&) = delete;
    DesktopWay& operator=(const DesktopWay&) = delete;

    /// Why widgets cannot be part of this desktop, and what to do, in the user's language; absent where they
    /// can.
    virtual std::optional<QString> problem() const { return std::nullopt; }

    /// Makes a window that was never shown part of the desktop.
    virtual void adopt(QWidget& window);

    /// Shows it, below all others.
    virtual void show(QWidget& window);

    /// To be called when the pointer is pressed in it, which to some window managers is a wish to be on top.
    virtual void keepBelow(QWidget&) { }

    /// Moves it, in the coordinates of the screens.
    virtual void move(QWidget& window, const QPoint& place);

    /// Whether a window can be moved while the pointer holds it. Where it cannot, a picture of it is moved.
    virtual bool movesUnderPointer() const { return true; }

    /// Gives it the keyboard, which no click takes from another window.
    virtual void giveKeyboard(QWidget& window);

    /// Activation token for a program that the user starts from this window. `time`: of the click, by the
    /// clock of the display's input events. Empty where the desktop gives none.
    virtual QString activationToken(QWidget&, std::uint32_t /*time*/) { return {}; }

    /// The screen's room for windows, panels left out.
    virtual QRect area(const QScreen& screen) const;

    /// Calls back whenever that has changed without the toolkit's or the window manager's saying so.
    virtual void onAreaChange(std::function<void()> /*changed*/) { }

    /// Whether ordinary windows and the pointer, too, are known in the coordinates of the screens.
    virtual bool arePlacesKnown() const { return true; }
};

} // namespace skyvane
