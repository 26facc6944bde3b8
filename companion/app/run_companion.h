#pragma once

#include "companion/app/command_line.h"
#include "companion/photo/photo_image.h"
#include "desk/autostart.h"
#include "platform/net/transport.h"

#include <QDBusConnection>
#include <QString>
#include <QUrl>

#include <filesystem>
#include <functional>

namespace skyvane {

/// What the companion meets of the machine; tests hand in their own.
struct CompanionSetup {
    QDBusConnection sessionBus;
    QDBusConnection systemBus;
    Transport transport;
    DecodePhoto decode;
    std::function<void(const QUrl&)> open; ///< Shows a page on the web.
    QString hostProgram;
    AutostartFolders autostart;
    std::filesystem::path alerts; ///< File in which it is kept what to tell the user of.
    std::filesystem::path memory; ///< File in which the window's place is kept.

    /// That of the user's session.
    static CompanionSetup standard();
};

/// Shows the window until the user closes it; where a companion of this session runs already, has that one do
/// what was asked. Returns the exit status. Needs a QApplication. `token`: the activation token that the
/// desktop gave this start.
int runCompanion(const CompanionSetup& setup, const CommandLine& line, const QString& token);

} // namespace skyvane
