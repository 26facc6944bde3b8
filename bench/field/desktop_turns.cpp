// The host's desktop of three widgets, for which five minutes pass with each turn: the clock leaps to where
// the widgets are due, and the machine wakes. A turn is over when the extension has ended.

#include "bench/field/turns.h"
#include "host/desktop/desktop.h"
#include "host/session/toolkit_look.h"
#include "host/session/way_of_session.h"
#include "platform/clock.h"
#include "platform/files/configuration_file.h"
#include "platform/pinned.h"
#include "tests/session/wait_for.h"
#include "tests/support/scratch_folder.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>

#include <sys/resource.h>

#include <chrono>
#include <functional>
#include <optional>
#include <stdexcept>
#include <tuple>

namespace {

using namespace std::chrono_literals;

/// What the login manager says when the machine has woken.
void wakeUp(const QDBusConnection& loginManager)
{
    QDBusMessage signal = QDBusMessage::createSignal(
        "/org/freedesktop/login1", "org.freedesktop.login1.Manager", "PrepareForSleep");
    signal << false;
    loginManager.send(signal);
}

/// Of the programs that were started and have ended.
auto othersCpu()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return std::tuple{usage.ru_utime.tv_sec, usage.ru_utime.tv_usec, usage.ru_stime.tv_usec};
}

} // namespace

int main(int argc, char* argv[])
{
    using namespace skyvane;
    constexpr auto interval = 5min + 5s; // Of the widgets, and what a reload date is kept away at least.
    keepThemesOut();
    const QApplication application{argc, argv};
    QDBusConnection loginManager = QDBusConnection::connectToBus(QDBusConnection::SystemBus, "login manager");
    loginManager.registerService("org.freedesktop.login1");

    const test::ScratchFolder folder;
    Date now = Clock::now();
    std::optional<Pinned<Date>> clock;
    clock.emplace(now);
    const auto untilExtensionEnds = [&](const std::function<void()>& begin) {
        const auto before = othersCpu();
        begin();
        if (!test::waitFor([&] { return othersCpu() != before; }))
            throw std::runtime_error{"no refresh"};
    };
    ExtensionProcess extension{{.path = SKYVANE_EXTENSION}, {.betweenTimelines = 0ms, .idle = 1ms}};
    std::optional<Desktop> desktop;
    untilExtensionEnds([&] {
        desktop.emplace(extension,
            DesktopSetup{
                .hostFile = folder.path() / "host.json",
                .configuration = Files::configurationFile(),
                .open = [](const URL&, const QString&) {},
                .welcome = [] {},
                .settings = [](const QString&) {},
            },
            wayOfSession());
    });
    test::waitFor([] { return false; }, 1s); // The extension may be started twice for a beginning.
    bench::playTurns([&] {
        untilExtensionEnds([&] {
            now += interval;
            clock.emplace(now);
            wakeUp(loginManager);
        });
    });
}
