#pragma once

#include "tests/session/x_session.h"

#include <array>
#include <string>

namespace skyvane::bench {

/// What a desktop tells the programs that it starts, by which the toolkit chooses its theme.
enum class Setting {
    plain, ///< No desktop's environment.
    gnome, ///< With it the toolkit loads the plugin for GTK's theme.
};

inline constexpr std::array settings{Setting::plain, Setting::gnome};

/// For the end of a row's name: "", or the desktop's.
std::string suffix(Setting setting);

/// Forgets the desktop that this process was started in. To be called before anything is started.
void leaveDesktop();

/// An X session as programs find it there.
class DesktopSession : public test::XSession {
public:
    /// Throws when the plugin is missing: the toolkit would be as light as without that desktop.
    explicit DesktopSession(Setting setting);
};

} // namespace skyvane::bench
