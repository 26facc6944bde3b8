#pragma once

#include "platform/net/url.h"

#include <QProcessEnvironment>
#include <QStringList>

#include <filesystem>

namespace skyvane {

/// The program that sets the widgets up and shows what their links lead to.
struct Companion {
    std::filesystem::path program;
    QProcessEnvironment environment; ///< The one that the host was started in.

    /// Starts it, to live by itself. A failure is a line in the journal.
    void start(const QStringList& words) const;

    /// Starts it with the activation token of the host's own start, which the desktop accepts once and for
    /// some seconds: for a companion that opens instead of the host.
    void startInPlaceOfHost() const;

    /// Has the desktop's own opener open the link; when that fails, the companion gets it.
    void openLink(const URL& link, const QString& opener = QStringLiteral("xdg-open")) const;
};

} // namespace skyvane
