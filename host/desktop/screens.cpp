#include "host/desktop/screens.h"

#include "host/session/desktop_way.h"

#include <QGuiApplication>
#include <QScreen>

namespace skyvane::Screens {

namespace {

/// What the screen says of itself. Outputs of older servers within Wayland say nothing and are numbered anew
/// each time they come; of them their place stays.
std::string identityOf(const QScreen& screen)
{
    QStringList words{screen.manufacturer(), screen.model(), screen.serialNumber()};
    words.removeAll(QString{});
    if (words.isEmpty() && screen.name().startsWith(QStringLiteral("XWAYLAND"))) {
        const QRect frame = screen.geometry();
        words << QStringLiteral("%1x%2+%3+%4")
                     .arg(frame.width())
                     .arg(frame.height())
                     .arg(frame.x())
                     .arg(frame.y());
    }
    return words.join(QLatin1Char{' '}).toStdString();
}

} // namespace

std::vector<ScreenArea> all(const DesktopWay& way)
{
    std::vector<ScreenArea> areas;
    for (const QScreen* screen : QGuiApplication::screens())
        areas.push_back({
            .name = screen->name().toStdString(),
            .area = way.area(*screen),
            .identity = identityOf(*screen),
        });
    return areas;
}

void onChange(QObject& context, std::function<void()> changed)
{
    const auto follow = [&context, changed](QScreen* screen) {
        QObject::connect(screen, &QScreen::availableGeometryChanged, &context, changed);
    };
    for (QScreen* screen : QGuiApplication::screens())
        follow(screen);
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &context, [=](QScreen* screen) {
        follow(screen);
        changed();
    });
    QObject::connect(qGuiApp, &QGuiApplication::screenRemoved, &context, changed);
    QObject::connect(qGuiApp, &QGuiApplication::primaryScreenChanged, &context, changed);
}

} // namespace skyvane::Screens
