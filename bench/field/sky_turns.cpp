// The companion's window on the sky page, which asks for the sky anew and shows it with each turn, a minute
// by the clock.

#include "bench/field/turns.h"
#include "companion/alerts/alert_store.h"
#include "companion/feed/pacer.h"
#include "companion/host_switch/host_control.h"
#include "companion/window/main_window.h"
#include "desk/look/appearance.h"
#include "platform/clock.h"
#include "platform/net/url_session.h"
#include "platform/pinned.h"
#include "tests/session/wait_for.h"
#include "tests/support/scratch_folder.h"

#include <QApplication>

#include <chrono>
#include <stdexcept>

int main(int argc, char* argv[])
{
    using namespace skyvane;
    using namespace std::chrono_literals;
    const QApplication application{argc, argv};
    const QDBusConnection bus = QDBusConnection::sessionBus();
    const test::ScratchFolder folder;
    Pacer pacer{UrlSession{}, {.rest = 0ms, .sharedTurn = {}}};
    Errands errands;
    SkyFeed feed{errands, pacer.transport()};
    Lookups lookups{errands, /*decode=*/{}, pacer.transport()};
    HostControl host{bus, {}};
    const Appearance appearance{bus};
    AlertStore alerts{folder.path() / "alerts.json"};
    const FontMeasurer fonts;
    MainWindow window{{
        .feed = feed,
        .lookups = lookups,
        .host = host,
        .alerts = alerts,
        .fonts = fonts,
        .systemBus = QDBusConnection::systemBus(),
        .open = {},
        .showSampleAlert = {},
        .autostart = {.own = folder.path(), .systemWide = {}},
        .memory = folder.path() / "companion.ini",
    }};
    window.show();
    Date now = Clock::now();
    bench::playTurns([&] {
        const Pinned<Date> clock{now += 1min};
        feed.refresh();
        if (!test::waitFor([&] { return !feed.report().isAsking; }) || !feed.report().problem.empty())
            throw std::runtime_error{"no sky"};
        constexpr auto untilPainted = 60ms;
        test::waitFor([] { return false; }, untilPainted);
    });
}
