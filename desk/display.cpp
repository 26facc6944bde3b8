#include "desk/display.h"

#include "platform/text/printable.h"

#include <QByteArray>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <xcb/xcb.h>

namespace skyvane {

namespace {

std::string given()
{
    std::string text;
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (qEnvironmentVariableIsSet(name))
            text += (text.empty() ? "" : ", ") + std::string{name} + "="
                + Unicode::oneLine(qgetenv(name).toStdString());
    }
    return text;
}

std::string absence()
{
    const std::string text = given();
    return text.empty() ? "neither DISPLAY nor WAYLAND_DISPLAY is set" : "none is found by " + text;
}

/// The handler of messages before ours.
QtMessageHandler& otherHandler()
{
    static QtMessageHandler handler = nullptr;
    return handler;
}

/// Right after these words the toolkit ends the program, with exit status 255.
void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    otherHandler()(type, context, text);
    if (text.startsWith(QStringLiteral("The Wayland connection ")))
        std::_Exit(EXIT_FAILURE);
}

bool isX11Reachable()
{
    if (!qEnvironmentVariableIsSet("DISPLAY"))
        return false;
    const std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> connection{
        xcb_connect(nullptr, nullptr), &xcb_disconnect};
    return xcb_connection_has_error(connection.get()) == 0;
}

/// The compositor's socket stands below the session's folder unless its name is a whole path.
bool isWaylandReachable()
{
    const std::filesystem::path name = qgetenv("WAYLAND_DISPLAY").toStdString();
    const std::string path
        = (std::filesystem::path{qgetenv("XDG_RUNTIME_DIR").toStdString()} / name).string();
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    if (name.empty() || path.size() >= sizeof address.sun_path)
        return false;
    path.copy(address.sun_path, path.size());
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (socket < 0)
        return false;
    const bool isConnected
        = ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    ::close(socket);
    return isConnected;
}

} // namespace

void Display::endWithDisplay()
{
    otherHandler() = qInstallMessageHandler(handleMessage);
}

bool Display::isReachable()
{
    return isX11Reachable() || isWaylandReachable();
}

Display::Display(std::string program)
    : m_absence(std::move(program) + ": no display: " + absence() + "\n") { }

Display::Attempt*& Display::Attempt::current()
{
    static Attempt* attempt = nullptr;
    return attempt;
}

Display::Attempt::Attempt(const Display& display) : m_display(display)
{
    current() = this;
    m_before = qInstallMessageHandler(receive);
}

Display::Attempt::~Attempt()
{
    qInstallMessageHandler(m_before);
    current() = nullptr;
    for (const Message& message : m_messages) {
        const QMessageLogContext context{nullptr, 0, nullptr, message.category};
        qt_message_output(message.type, context, message.text);
    }
}

void Display::Attempt::receive(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtFatalMsg) {
        std::fputs(current()->m_display.m_absence.c_str(), stderr);
        std::_Exit(EXIT_FAILURE);
    }
    current()->m_messages.push_back({.type = type, .category = context.category, .text = text});
}

} // namespace skyvane
