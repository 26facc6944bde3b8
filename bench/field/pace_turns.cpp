// The companion with 1,000 aircraft and an hour of their trails: one step of what the argument names with
// each turn.

#include "bench/field/turns.h"
#include "companion/alerts/alert_store.h"
#include "companion/look/preferences.h"
#include "companion/map/earth_map.h"
#include "companion/sky/live_scope.h"
#include "companion/sky/sky_page.h"
#include "companion/sky/sky_table.h"
#include "core/config/shared_state.h"
#include "platform/pinned.h"
#include "tests/session/wait_for.h"
#include "tests/support/scratch_folder.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>

#include <chrono>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>

namespace {

using namespace skyvane;
using namespace std::chrono_literals;

/// All of them fly north.
std::string skyAt(int minute)
{
    constexpr int count = 1000;
    std::string list;
    for (int index = 0; index < count; ++index) {
        const std::string number = std::to_string(100'000 + index);
        const int north = (index * 7 + minute * 8) % 1000; // Thousandths of 4 degrees.
        const int east = index * 13 % 1000;
        list += (index == 0 ? R"({"hex":")" : R"(,{"hex":")") + number + R"(","flight":"SKY)" + number
            + R"(","t":"A320","alt_baro":35000,"gs":480,"track":0,"seen_pos":0,"lat":)"
            + std::to_string(49'500 + north * 4) + R"(e-3,"lon":)" + std::to_string(-2'120 + east * 4)
            + "e-3}";
    }
    return R"({"ac":[)" + list + "]}";
}

void sendPointer(QWidget& widget, QEvent::Type type, const QPointF& place, Qt::MouseButton button)
{
    QMouseEvent event{type, place, widget.mapToGlobal(place), button,
        type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier};
    QApplication::sendEvent(&widget, &event);
}

void scroll(SkyTable& table, int turn)
{
    QScrollBar& bar = *table.verticalScrollBar();
    bar.setValue(turn * 60 % (bar.maximum() + 1));
    table.viewport()->repaint();
}

void point(LiveScope& scope, int turn)
{
    const int x = 20 + turn * 7 % (scope.width() - 40);
    sendPointer(scope, QEvent::MouseMove, {1.0 * x, scope.height() / 2.0}, Qt::NoButton);
    scope.repaint();
}

void pan(EarthMap& map, int turn)
{
    const QPointF before{100.0 + turn * 9 % 200, 100};
    sendPointer(map, QEvent::MouseButtonPress, before, Qt::LeftButton);
    sendPointer(map, QEvent::MouseMove, before + QPointF{24, 6}, Qt::LeftButton);
    sendPointer(map, QEvent::MouseButtonRelease, before + QPointF{24, 6}, Qt::LeftButton);
    map.repaint();
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application{argc, argv};
    const test::ScratchFolder folder;
    int minute = 0;
    const Transport transport = [&](const URLRequest&, const std::stop_token&) {
        return URLResponse{.status = 200, .body = skyAt(minute)};
    };
    Errands errands;
    SkyFeed feed{errands, transport};
    AlertStore alerts{folder.path() / "alerts.json"};
    Preferences preferences{folder.path() / "companion.ini"};
    const FontMeasurer fonts;
    SkyPage page{feed, alerts, preferences, fonts};
    page.resize(1500, 900);
    page.show();
    EarthMap map;
    map.resize(900, 600);
    map.showSubject({.home = Coordinate{.latitude = 51.5, .longitude = -0.12}, .radiusNM = 250});
    map.show();
    const Date begin = Clock::now();
    for (; minute < 60; ++minute) {
        const Pinned<Date> clock{begin + std::chrono::minutes{minute}};
        feed.refresh();
        if (!test::waitFor([&] { return !feed.report().isAsking; }) || !feed.report().problem.empty())
            throw std::runtime_error{"no sky"};
    }
    test::waitFor([&] { return map.isReady(); });
    test::waitFor([] { return false; }, 500ms);
    int turn = 0;
    const std::map<std::string, std::function<void()>> steps{
        {"list", [&] { scroll(*page.findChild<SkyTable*>(), ++turn); }},
        {"scope", [&] { point(*page.findChild<LiveScope*>(), ++turn); }},
        {"map", [&] { pan(map, ++turn); }},
        {"sky",
            [&] {
                page.findChild<LiveScope*>()->setMapShown(++turn % 2 == 0);
                page.findChild<LiveScope*>()->repaint();
            }},
    };
    bench::playTurns(steps.at(argc > 1 ? argv[1] : "list"));
}
