#pragma once

#include "host/placing/placed_widget.h"

#include <QBasicTimer>
#include <QWidget>

#include <chrono>
#include <functional>

namespace skyvane {

class DesktopWay;

/// Stands for some seconds where a widget was removed, and offers to undo that.
class UndoCard : public QWidget {
public:
    struct Actions {
        std::function<void()> undo;
        std::function<void()> add{}; ///< Shows the gallery; absent where other widgets lead to it.
    };

    static constexpr std::chrono::seconds patience{10};

    /// `name`: the widget's, for people. The card is as wide as the widget was.
    UndoCard(const QString& name, int width, DesktopWay& way, const Actions& actions,
        std::function<void()> expired);

    /// Cuts the round corners off, for a screen that blends no window with what is below it.
    void cutCorners();

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    std::function<void()> m_expired;
    QBasicTimer m_timer;
};

} // namespace skyvane
