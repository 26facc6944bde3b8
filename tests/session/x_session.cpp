#include "tests/session/x_session.h"

#include "tests/session/wait_for.h"

#include <QRegularExpression>

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace skyvane::test {

namespace {

void end(QProcess& process)
{
    process.terminate();
    if (process.state() != QProcess::NotRunning && !process.waitForFinished(5000)) {
        process.kill();
        process.waitForFinished();
    }
}

} // namespace

XSession::XSession(WindowManager windowManager)
{
    m_environment = QProcessEnvironment::systemEnvironment();
    m_environment.insert("HOME", QString::fromStdString(m_home.path().string()));
    m_environment.insert("XDG_RUNTIME_DIR", QString::fromStdString(m_home.path().string()));
    m_environment.insert("QT_QPA_PLATFORM", "xcb");

    m_bus = std::make_unique<MessageBus>(m_environment);
    for (const char* name : {"DBUS_SESSION_BUS_ADDRESS", "DBUS_SYSTEM_BUS_ADDRESS"})
        m_environment.insert(name, m_bus->address());
    startServer();
    if (windowManager != WindowManager::none)
        startWindowManager(windowManager);
}

void XSession::startServer()
{
    m_server.setStandardErrorFile(QProcess::nullDevice());
    m_server.start(
        "Xvfb", {"-displayfd", "1", "-screen", "0", "1280x900x24", "-nolisten", "tcp", "-noreset"});
    QByteArray display;
    while (!display.contains('\n')) {
        if (!m_server.waitForReadyRead(20000))
            throw std::runtime_error{"no X server"};
        display += m_server.readAllStandardOutput();
    }
    m_environment.insert("DISPLAY", ":" + QString::fromUtf8(display.trimmed()));
}

void XSession::startWindowManager(WindowManager windowManager)
{
    m_windowManager.setProcessEnvironment(m_environment);
    m_windowManager.setStandardOutputFile(QProcess::nullDevice());
    m_windowManager.setStandardErrorFile(QProcess::nullDevice());
    // Long after it has announced itself it still loses windows that are mapped while it starts.
    const QString sign = "xprop -root -format IS_MANAGED 8s -set IS_MANAGED yes";
    if (windowManager == WindowManager::i3) {
        const auto configuration = m_home.path() / "i3.config";
        std::ofstream{configuration} << "font pango:monospace 8\nexec --no-startup-id " << sign.toStdString()
                                     << "\n";
        m_windowManager.start("i3", {"-c", QString::fromStdString(configuration.string())});
    } else {
        m_windowManager.start(
            "openbox", {"--sm-disable", "--config-file", "/etc/xdg/openbox/rc.xml", "--startup", sign});
    }
    const bool isManaged = waitFor([&] {
        return run("xprop", {"-root", "IS_MANAGED"}).find("yes") != std::string::npos;
    });
    if (!isManaged)
        throw std::runtime_error{"no window manager"};
}

XSession::~XSession()
{
    end(m_windowManager);
    end(m_server);
}

void XSession::endServer()
{
    m_server.kill();
    m_server.waitForFinished();
}

std::string XSession::run(const QString& program, const QStringList& words) const
{
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.start(program, words);
    process.waitForFinished();
    return process.readAllStandardOutput().toStdString();
}

std::vector<std::string> XSession::windowsOf(qint64 process) const
{
    const auto text = run("xdotool", {"search", "--onlyvisible", "--pid", QString::number(process)});
    std::vector<std::string> windows;
    for (const QString& window : QString::fromStdString(text).split('\n', Qt::SkipEmptyParts))
        windows.push_back(window.toStdString());
    std::sort(windows.begin(), windows.end());
    return windows;
}

QRect XSession::frameOf(const std::string& window) const
{
    const auto text = run("xdotool", {"getwindowgeometry", "--shell", QString::fromStdString(window)});
    const auto value = [&](const QString& name) {
        const QRegularExpression line{"^" + name + "=(-?\\d+)$", QRegularExpression::MultilineOption};
        return line.match(QString::fromStdString(text)).captured(1).toInt();
    };
    return {value("X"), value("Y"), value("WIDTH"), value("HEIGHT")};
}

std::vector<unsigned long> XSession::stacking() const
{
    const QString text = QString::fromStdString(run("xprop", {"-root", "_NET_CLIENT_LIST_STACKING"}));
    std::vector<unsigned long> windows;
    for (const QString& window : text.section('#', 1).split(',', Qt::SkipEmptyParts)) {
        if (const unsigned long id = window.trimmed().toULong(nullptr, 16); id != 0)
            windows.push_back(id);
    }
    return windows;
}

} // namespace skyvane::test
