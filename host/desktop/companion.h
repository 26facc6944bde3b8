#pragma once

#include "platform/net/url.h"

#include <QDBusConnection>
#include <QProcessEnvironment>
#include <QStringList>

#include <filesystem>
#include <functional>

namespace skyvane {

/// The program that sets the widgets up and shows what their links lead to.
struct Companion {
    std::filesystem::path program;
    QProcessEnvironment environment; ///< The one that the host was started in.
    /// Gives the message bus that starts the companion outside the sandbox that the host, and what it starts,
    /// is in: a web browser, which the companion opens, could not be there. Empty where the host is in none.
    std::function<QDBusConnection()> outside{};

    /// Starts it, to live by itself. A failure is a line in the journal. `token`: activation token of the
    /// click that it is started for; empty for none.
    void start(const QStringList& words, const QString& token) const;

    /// Starts it with the activation token of the host's own start, which the desktop accepts once and for
    /// some seconds: for a companion that opens instead of the host.
    void startInPlaceOfHost() const;

    /// Has the companion of this bus open the link, else the desktop's own opener; when that fails, the
    /// companion is started with it. An opener that asks over the bus itself drops the token, and one that
    /// does not wait for the answer (exo-open) drops a companion's first link, too.
    void openLink(const QDBusConnection& bus, const URL& link, const QString& token,
        const QString& opener = QStringLiteral("xdg-open")) const;
};

} // namespace skyvane
