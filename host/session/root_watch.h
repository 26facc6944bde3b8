#pragma once

#include <QAbstractNativeEventFilter>

#include <array>
#include <cstdint>
#include <functional>

namespace skyvane {

/// Tells of what the window manager says on the X server's root window: that a panel came, went or changed,
/// and that the manager was replaced by one that can do other things. Needs a QGuiApplication; elsewhere it
/// never tells.
class RootWatch : public QAbstractNativeEventFilter {
public:
    RootWatch(std::function<void()> areasChanged, std::function<void()> managerChanged);
    ~RootWatch() override;
    RootWatch(const RootWatch&) = delete;
    RootWatch& operator=(const RootWatch&) = delete;

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

private:
    std::function<void()> m_areasChanged;
    std::function<void()> m_managerChanged;
    std::array<std::uint32_t, 2> m_areas{}; ///< Atoms of the properties with the work areas.
    std::uint32_t m_abilities = 0; ///< Atom of the property with what the manager can do.
    std::uint32_t m_root = 0;
};

} // namespace skyvane
