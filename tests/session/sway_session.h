#pragma once

#include "tests/support/scratch_folder.h"

#include <QJsonDocument>
#include <QProcess>
#include <QRect>

#include <string>
#include <vector>

namespace skyvane::test {

/// A Wayland compositor with one output of 1280 by 720 pixels that nobody sees, and an X server of its own
/// for programs that want one. Everything in it ends with it.
class SwaySession {
public:
    SwaySession();
    ~SwaySession();
    SwaySession(const SwaySession&) = delete;
    SwaySession& operator=(const SwaySession&) = delete;

    /// Has the compositor start a program, its standard output dropped.
    void start(const QString& program, const QStringList& words) const;

    /// One command of the compositor's; its answer.
    QJsonDocument tell(const QStringList& words) const;

    /// The frames of all windows on view, the widest first, of these the highest.
    std::vector<QRect> windows() const;

    /// The titles of the windows on view, in no order.
    QStringList titles() const;

    /// The names of the outputs in use.
    QStringList outputs() const;

private:
    ScratchFolder m_folder;
    QProcessEnvironment m_environment;
    QProcess m_compositor;
};

} // namespace skyvane::test
