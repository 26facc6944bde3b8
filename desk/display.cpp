#include "desk/display.h"

#include <QByteArray>

#include <array>
#include <cstdio>
#include <cstdlib>

namespace skyvane {

namespace {

std::string given()
{
    std::string text;
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (qEnvironmentVariableIsSet(name))
            text += (text.empty() ? "" : ", ") + std::string{name} + "=" + qgetenv(name).toStdString();
    }
    return text;
}

std::string absence()
{
    const std::string text = given();
    return text.empty() ? "neither DISPLAY nor WAYLAND_DISPLAY is set" : "none is found by " + text;
}

} // namespace

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
