#pragma once

#include "desk/bus/host_interface.h"

#include <QDBusServiceWatcher>
#include <QObject>
#include <QTimer>

namespace skyvane {

/// Starts and ends the session's widget host, and knows whether it runs.
class HostControl : public QObject {
    Q_OBJECT
public:
    /// `program`: path of the host.
    HostControl(QDBusConnection bus, QString program);

    const QString& program() const { return m_program; }
    bool isRunning() const { return m_isRunning; }

    /// Whether a shell shows the widgets, or runs the host, itself; it does from log-in on unless told
    /// otherwise.
    bool isShellThere() const;

    void start();
    void stop();

    /// Shows the host's gallery, from which widgets are added; starts the host first where it does not run.
    void showGallery();

signals:
    void runningChanged(bool isRunning);
    /// A start failed; `problem` says why in the user's language.
    void failed(const QString& problem);

private:
    void setRunning(bool isRunning);
    void askWhetherItRuns();
    void askForGallery();

    QDBusConnection m_bus;
    QString m_program;
    HostInterface m_host;
    QDBusServiceWatcher m_watcher;
    QTimer m_patience; ///< Time-out of a start or an end of the host; runs while one is awaited.
    bool m_isRunning = false;
    bool m_owesGallery = false; ///< The gallery is to be shown as soon as the host runs.
};

} // namespace skyvane
