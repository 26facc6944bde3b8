#pragma once

#include <QWidget>

#include <memory>

namespace skyvane {

/// Hides a window now and deletes it later: it may be in the middle of an event.
struct DeleteLater {
    void operator()(QWidget* window) const
    {
        window->hide();
        window->deleteLater();
    }
};

template <class Window>
using WindowPointer = std::unique_ptr<Window, DeleteLater>;

} // namespace skyvane
