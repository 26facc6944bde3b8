#include "host/placing/screens.h"

#include <QGuiApplication>
#include <QScreen>

namespace skyvane::Screens {

std::vector<ScreenArea> all()
{
    std::vector<ScreenArea> areas;
    for (const QScreen* screen : QGuiApplication::screens())
        areas.push_back({.name = screen->name().toStdString(), .area = screen->availableGeometry()});
    return areas;
}

std::optional<ScreenArea> primary()
{
    const auto areas = all();
    return areas.empty() ? std::nullopt : std::optional{areas.front()};
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
}

} // namespace skyvane::Screens
