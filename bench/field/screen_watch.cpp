#include "bench/field/screen_watch.h"

#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <thread>

namespace skyvane::bench {

ScreenWatch::ScreenWatch(const QString& display, const QRect& part)
    : m_connection(xcb_connect(display.toUtf8().constData(), nullptr)), m_part(part)
{
    if (xcb_connection_has_error(m_connection.get()) != 0)
        throw std::runtime_error{"no X server"};
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get())).data->root;
}

ScreenWatch::Pixels ScreenWatch::look() const
{
    const auto request = xcb_get_image(m_connection.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, m_root,
        static_cast<std::int16_t>(m_part.x()), static_cast<std::int16_t>(m_part.y()),
        static_cast<std::uint16_t>(m_part.width()), static_cast<std::uint16_t>(m_part.height()), ~0U);
    const std::unique_ptr<xcb_get_image_reply_t, decltype(&std::free)> image{
        xcb_get_image_reply(m_connection.get(), request, nullptr), &std::free};
    if (!image)
        throw std::runtime_error{"no picture of the screen"};
    const std::uint8_t* const data = xcb_get_image_data(image.get());
    return {data, data + xcb_get_image_data_length(image.get())};
}

double ScreenWatch::waitUntil(const std::function<bool(const Pixels&)>& condition) const
{
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    while (!condition(look())) {
        if (Clock::now() - start > std::chrono::seconds{20})
            throw std::runtime_error{"nothing was shown"};
        std::this_thread::sleep_for(std::chrono::milliseconds{1});
    }
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

} // namespace skyvane::bench
