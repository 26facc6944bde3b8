#pragma once

#include "companion/app/command_line.h"
#include "companion/host_switch/autostart.h"
#include "companion/photo/photo_decoder.h"
#include "platform/net/transport.h"

#include <QDBusConnection>
#include <QString>
#include <QUrl>

#include <filesystem>
#include <functional>

namespace skyvane {

/// The world around the companion.
struct CompanionSetup {
    QDBusConnection sessionBus;
    QDBusConnection systemBus;
    Transport transport;
    PhotoDecoder::Decode decode; ///< Of photographs.
    std::function<void(const QUrl&)> open; ///< Shows a page on the web.
    QString hostProgram;
    AutostartFolders autostart;
    std::filesystem::path memory; ///< File in which the window's place is kept.

    /// The user's own.
    static CompanionSetup standard();
};

/// Shows the window until the user closes it; where a companion of this session runs already, that one does
/// what was asked. The exit status. Needs a QApplication. `token`: what the desktop gave this start.
int runCompanion(const CompanionSetup& setup, const CommandLine& line, const QString& token);

} // namespace skyvane
