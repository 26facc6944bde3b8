#pragma once

#include <QRect>
#include <QString>

#include <xcb/xcb.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace skyvane::bench {

/// Looks at a part of a screen, whoever painted it.
class ScreenWatch {
public:
    /// Blue, green, red and a spare byte a pixel.
    using Pixels = std::vector<std::uint8_t>;

    ScreenWatch(const QString& display, const QRect& part);

    Pixels look() const;

    /// Milliseconds until it looks so; looked at about every millisecond. Throws after 20 seconds.
    double waitUntil(const std::function<bool(const Pixels&)>& condition) const;

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    xcb_window_t m_root;
    QRect m_part;
};

} // namespace skyvane::bench
