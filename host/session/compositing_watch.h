#pragma once

#include <QAbstractNativeEventFilter>

#include <cstdint>
#include <functional>

namespace skyvane {

/// Knows whether windows that are partly transparent are blended with what is below them, and tells when that
/// changes. Needs a QGuiApplication.
class CompositingWatch : public QAbstractNativeEventFilter {
public:
    explicit CompositingWatch(std::function<void()> changed);
    ~CompositingWatch() override;
    CompositingWatch(const CompositingWatch&) = delete;
    CompositingWatch& operator=(const CompositingWatch&) = delete;

    bool isActive() const;

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

private:
    std::function<void()> m_changed;
    std::uint32_t m_compositor = 0; ///< The atom of the selection that a compositor owns.
    std::uint8_t m_event = 0; ///< The type of the events about it; 0 for none.
};

} // namespace skyvane
