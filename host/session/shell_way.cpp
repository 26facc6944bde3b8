#include "host/session/shell_way.h"

#include "desk/bus/names.h"
#include "desk/bus/shell_interface.h"
#include "host/session/desktop_way.h"

#include <QDBusConnectionInterface>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <chrono>
#include <functional>
#include <utility>

namespace skyvane {

namespace {

/// The shell draws the desktop: when it takes longer, there are other worries than these.
constexpr std::chrono::milliseconds patience{1000};

const QScreen* screenOf(const QRect& frame)
{
    const QScreen* screen = QGuiApplication::screenAt(frame.center());
    return screen != nullptr ? screen : QGuiApplication::primaryScreen();
}

void tellPlace(QWidget& window)
{
    const QScreen* screen = screenOf(window.geometry());
    if (screen == nullptr)
        return;
    const QPoint inset = window.pos() - screen->geometry().topLeft();
    window.setWindowTitle(
        QStringLiteral("skyvane:%1:%2,%3").arg(screen->name()).arg(inset.x()).arg(inset.y()));
}

class PlacedByShell : public DesktopWay {
public:
    explicit PlacedByShell(const QDBusConnection& bus)
        : m_shell(BusName::shell(), BusName::path(BusName::shell()), bus)
    {
        m_shell.setTimeout(static_cast<int>(patience.count()));
    }

    /// Others may give the window another title.
    void adopt(QWidget& window) override
    {
        DesktopWay::adopt(window);
        QObject::connect(&window, &QWidget::windowTitleChanged, &window, [&window] { tellPlace(window); });
    }

    void move(QWidget& window, const QPoint& place) override
    {
        window.move(place);
        tellPlace(window);
    }

    /// The pointer counts from the window that it holds.
    bool movesUnderPointer() const override { return false; }
    bool arePlacesKnown() const override { return false; }

    void giveKeyboard(QWidget& window) override
    {
        m_shell.Focus(window.windowTitle(), 0);
        window.setFocus(Qt::TabFocusReason);
    }

    QString activationToken(QWidget&, std::uint32_t time) override
    {
        return m_shell.ActivationToken(time).value();
    }

    QRect area(const QScreen& screen) const override
    {
        auto answer = m_shell.Area(screen.name());
        answer.waitForFinished();
        if (answer.isError())
            return screen.availableGeometry();
        const QRect inScreen{
            answer.argumentAt<0>(), answer.argumentAt<1>(), answer.argumentAt<2>(), answer.argumentAt<3>()};
        return inScreen.translated(screen.geometry().topLeft());
    }

    void onAreaChange(std::function<void()> changed) override
    {
        QObject::connect(&m_shell, &ShellInterface::AreasChanged, &m_shell, std::move(changed));
    }

private:
    mutable ShellInterface m_shell;
};

bool isThere(const QDBusConnection& bus)
{
    return bus.isConnected() && bus.interface()->isServiceRegistered(BusName::shell()).value();
}

} // namespace

/// The layer shell is asked for over a connection, of which there is only this one. The toolkit is to let
/// windows have places, and not to be led to an X server.
void ShellWay::useOwnConnection()
{
    qputenv("QT_QPA_PLATFORM", "wayland");
    qputenv("QT_WAYLAND_DISABLE_FIXED_POSITIONS", "1");
}

bool ShellWay::isAsked(const QDBusConnection& bus)
{
    if (!isThere(bus))
        return false;
    ShellInterface shell{BusName::shell(), BusName::path(BusName::shell()), bus};
    auto answer = shell.Start();
    answer.waitForFinished();
    return !answer.isError();
}

std::unique_ptr<DesktopWay> ShellWay::way(const QDBusConnection& bus)
{
    return isThere(bus) ? std::make_unique<PlacedByShell>(bus) : nullptr;
}

} // namespace skyvane
