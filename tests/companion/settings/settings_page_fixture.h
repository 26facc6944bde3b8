#pragma once

#include "companion/position/place_field.h"
#include "companion/position/position_field.h"
#include "companion/settings/radius_field.h"
#include "companion/settings/settings_page.h"
#include "desk/display_list_view.h"
#include "platform/files/files.h"
#include "platform/pinned.h"
#include "platform/text/locale.h"
#include "tests/session/message_bus.h"
#include "tests/session/wait_for.h"
#include "tests/support/scratch_folder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>

#include <gmock/gmock.h>

#include <algorithm>
#include <memory>
#include <stdexcept>

namespace skyvane::test {

inline SharedState::Config london()
{
    return {.home = {.latitude = 51.5, .longitude = -0.12, .label = "London"},
        .radiusNM = 25,
        .distanceUnit = "mi"};
}

inline std::vector<Place> twoPlaces()
{
    return {
        {.name = "Lisbon",
            .englishName = "Lisbon",
            .region = "Portugal",
            .countryCode = "PT",
            .coordinate = {38.71667, -9.13333}},
        {.name = "Lima",
            .englishName = "Lima",
            .region = "Peru",
            .countryCode = "PE",
            .coordinate = {-12, -77}},
    };
}

/// The page over a home folder and a bus of its own.
class SettingsPageFixture : public testing::Test {
protected:
    ~SettingsPageFixture() override
    {
        page.reset();
        QDBusConnection::disconnectFromBus("settings page");
    }

    SettingsPage& open()
    {
        using namespace std::chrono_literals;
        const SettingsPage::Surroundings surroundings{
            .loadPlaces = &twoPlaces, .pace = {.choosing = 20ms, .typing = 100ms, .calm = 10ms}};
        page = std::make_unique<SettingsPage>(
            fonts, QDBusConnection::connectToBus(bus.address(), "settings page"), preferences, surroundings);
        QObject::connect(&*page, &SettingsPage::changed, [this] { ++changes; });
        page->resize(1060, 740);
        page->show();
        page->activateWindow();
        EXPECT_TRUE(waitFor([&] { return page->isActiveWindow(); }));
        return *page;
    }

    static void press(QWidget& widget, int key, const QString& text = {})
    {
        QKeyEvent event{QEvent::KeyPress, key, Qt::NoModifier, text};
        QApplication::sendEvent(&widget, &event);
    }

    /// In place of all that is there.
    static void type(QLineEdit& line, const QString& text)
    {
        line.setFocus();
        line.selectAll();
        press(line, Qt::Key_Delete);
        for (const QChar character : text)
            press(line, 0, character);
    }

    QLineEdit& place() { return *page->findChild<PlaceField*>(); }
    MarkedLineEdit& position() { return page->findChild<PositionField*>()->line(); }
    MarkedLineEdit& radius() { return page->findChild<RadiusField*>()->number(); }
    QSlider& slider() { return page->findChild<RadiusField*>()->slider(); }

    /// The line whose label says so.
    MarkedLineEdit& named(const QString& labelText)
    {
        for (const auto* label : page->findChildren<QLabel*>()) {
            if (label->text().remove('&') == labelText)
                return *dynamic_cast<MarkedLineEdit*>(label->buddy());
        }
        throw std::runtime_error{"no such line"};
    }

    QAbstractButton& button(const QString& name)
    {
        for (auto* button : page->findChildren<QAbstractButton*>()) {
            if (button->text().remove('&') == name || button->accessibleName() == name)
                return *button;
        }
        throw std::runtime_error{"no such button"};
    }

    /// Whether any label says so.
    bool says(const QString& text)
    {
        const auto labels = page->findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(),
            [&](const QLabel* label) { return label->isVisibleTo(&*page) && label->text().contains(text); });
    }

    bool isWritten(const SharedState::Config& expected)
    {
        return waitFor([&] { return SharedState::read() == expected; });
    }

    /// For longer than any choice takes to be written.
    static bool staysUnwritten(const std::optional<SharedState::Config>& before)
    {
        return !waitFor([&] { return SharedState::read() != before; }, std::chrono::milliseconds{300});
    }

    ScratchFolder scratch;
    Pinned<HomeFolder> home{{.path = scratch.path()}};
    Pinned<Locale> locale{{.numbers = "en_US", .times = "en_US", .timeZone = "UTC"}};
    MessageBus bus;
    Preferences preferences{scratch.path() / "companion.ini"};
    FontMeasurer fonts;
    int changes = 0;
    std::unique_ptr<SettingsPage> page;
};

} // namespace skyvane::test
