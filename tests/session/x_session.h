#pragma once

#include "tests/session/message_bus.h"
#include "tests/support/scratch_folder.h"

#include <QProcess>
#include <QRect>

#include <memory>
#include <string>
#include <vector>

namespace skyvane::test {

enum class WindowManager {
    openbox,
    i3, ///< A tiling one.
    none,
};

/// An X server of 1280 by 900 pixels on a display of its own, with a window manager and a message bus, which
/// is its system's too; all end with it.
class XSession {
public:
    explicit XSession(WindowManager windowManager = WindowManager::openbox);
    ~XSession();
    XSession(const XSession&) = delete;
    XSession& operator=(const XSession&) = delete;

    /// What a program of this session is started with; its home folder is an empty one.
    const QProcessEnvironment& environment() const { return m_environment; }

    /// One more variable of it.
    void set(const QString& name, const QString& value) { m_environment.insert(name, value); }

    /// Runs a program to its end and returns its standard output.
    std::string run(const QString& program, const QStringList& words) const;

    /// The visible windows of a process, in order of their ids.
    std::vector<std::string> windowsOf(qint64 process) const;
    QRect frameOf(const std::string& window) const;

    /// All windows the window manager knows, the lowest first.
    std::vector<unsigned long> stacking() const;

    /// Ends the X server, as when it crashes.
    void endServer();

    /// The session's bus, for services that a test offers.
    const MessageBus& bus() const { return *m_bus; }

private:
    void startServer();
    void startWindowManager(WindowManager windowManager);

    ScratchFolder m_home;
    QProcessEnvironment m_environment;
    std::unique_ptr<MessageBus> m_bus;
    QProcess m_server;
    QProcess m_windowManager;
};

} // namespace skyvane::test
