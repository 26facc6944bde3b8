#include "companion/map/map_scene.h"

#include <gmock/gmock.h>

#include <QFont>
#include <QImage>
#include <QPainter>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>

namespace skyvane {

namespace {

using testing::Contains;
using testing::Not;

constexpr Coordinate munich{.latitude = 48.137, .longitude = 11.575};
constexpr Coordinate dover{.latitude = 51.12, .longitude = 1.33};

const MapData& data()
{
    static const MapData loaded = MapData::load();
    return loaded;
}

MapFrame frameOf(const Coordinate& middle, double radiusNM)
{
    return {middle, 150 / radiusNM, QRectF{0, 0, 500, 320}};
}

MapScene scene(const Coordinate& home, double radiusNM)
{
    return MapScene::of(
        data(), frameOf(home, radiusNM), {.home = home, .radiusNM = radiusNM}, QFontMetricsF{QFont{}}, {});
}

bool areSeen(const std::vector<QPolygonF>& lines)
{
    const QRectF area{0, 0, 500, 320};
    return std::ranges::any_of(lines, [&](const QPolygonF& line) {
        return std::ranges::any_of(line, [&](const QPointF& place) { return area.contains(place); });
    });
}

std::vector<std::string> texts(const std::vector<MapScene::Mark>& marks)
{
    std::vector<std::string> list;
    list.reserve(marks.size());
    for (const MapScene::Mark& mark : marks)
        list.push_back(mark.text.toStdString());
    return list;
}

} // namespace

TEST(MapScene, namesCitiesAndTheAirportsWithinTheRadiusByTheirCodes)
{
    const MapScene around = scene(munich, 50);
    EXPECT_THAT(texts(around.cities), Contains("Augsburg"));
    EXPECT_THAT(texts(around.airports), Contains("MUC"));
    EXPECT_THAT(texts(scene(munich, 10).airports), Not(Contains("MUC"))) << "it is 15 nautical miles away";
    ASSERT_TRUE(around.home);
    EXPECT_NEAR(around.home->x(), 250, 0.1);
    EXPECT_NEAR(around.home->y(), 160, 0.1);
}

TEST(MapScene, drawsTheRadiusAroundHome)
{
    const MapScene around = scene(munich, 50);
    ASSERT_GT(around.ring.size(), 90);
    for (const QPointF& place : around.ring)
        EXPECT_NEAR(std::hypot(place.x() - 250, place.y() - 160), 150, 0.1);
    for (const double none : {0.0, -5.0, std::nan("")})
        EXPECT_TRUE(MapScene::of(
            data(), frameOf(munich, 50), {.home = munich, .radiusNM = none}, QFontMetricsF{QFont{}}, {})
                        .ring.isEmpty());
}

TEST(MapScene, withoutAHomeHasNeitherRingNorAirports)
{
    const MapScene world
        = MapScene::of(data(), {munich, 0.04, QRectF{0, 0, 500, 320}}, {}, QFontMetricsF{QFont{}}, {});
    EXPECT_FALSE(world.home);
    EXPECT_TRUE(world.ring.isEmpty());
    EXPECT_TRUE(world.airports.empty());
    EXPECT_GT(world.coast.size(), 1000U);
    EXPECT_FALSE(world.cities.empty());
}

TEST(MapScene, hasCoastAndBordersWhereTheyAre)
{
    EXPECT_TRUE(areSeen(scene(dover, 10).coast));
    EXPECT_FALSE(areSeen(scene(munich, 10).coast));
    EXPECT_TRUE(areSeen(scene({.latitude = 47.56, .longitude = 7.6}, 10).borders));
    EXPECT_FALSE(areSeen(scene(munich, 10).borders));
}

TEST(MapScene, namesDoNotLieOnEachOther)
{
    const QFontMetricsF metrics{QFont{}};
    for (const double radiusNM : {5.0, 25.0, 250.0, 2000.0}) {
        const MapScene around = scene({.latitude = 51, .longitude = 7}, radiusNM);
        std::vector<QRectF> frames;
        for (const auto* marks : {&around.cities, &around.airports}) {
            for (const MapScene::Mark& mark : *marks) {
                if (!mark.text.isEmpty())
                    frames.emplace_back(mark.origin.x(), mark.origin.y() - metrics.ascent(),
                        metrics.horizontalAdvance(mark.text), metrics.height());
            }
        }
        EXPECT_GT(frames.size(), 2U) << radiusNM;
        for (std::size_t one = 0; one < frames.size(); ++one) {
            EXPECT_TRUE(QRectF(0, 0, 500, 320).contains(frames[one]));
            for (std::size_t other = one + 1; other < frames.size(); ++other)
                EXPECT_FALSE(frames[one].adjusted(0.1, 0.1, -0.1, -0.1).intersects(frames[other]))
                    << radiusNM;
        }
    }
}

TEST(MapScene, noLineCrossesTheWholeMap)
{
    const QRectF area{0, 0, 500, 320};
    for (const Coordinate& middle : {munich, Coordinate{.latitude = 0, .longitude = 179},
             Coordinate{.latitude = -89, .longitude = 0}, Coordinate{.latitude = 65, .longitude = -170}}) {
        const MapScene world = MapScene::of(data(), {middle, 0.02, area}, {}, QFontMetricsF{QFont{}}, {});
        for (const QPolygonF& line : world.coast) {
            for (qsizetype next = 1; next < line.size(); ++next)
                ASSERT_LT((line[next] - line[next - 1]).manhattanLength(), 40);
        }
    }
}

TEST(MapScene, isPaintedWithoutAPauseThatOneFeels)
{
    QImage image{500, 320, QImage::Format_ARGB32_Premultiplied};
    data();
    const std::clock_t start = std::clock();
    int maps = 0;
    for (const double radiusNM : {5.0, 25.0, 250.0, 5000.0}) {
        image.fill(Qt::black);
        QPainter painter{&image};
        paintMap(scene(munich, radiusNM),
            {.coast = Qt::white, .border = Qt::gray, .city = Qt::white, .airport = Qt::cyan, .home = Qt::red},
            painter);
        painter.end();
        EXPECT_EQ(image.pixelColor(250, 160), QColor(Qt::red)) << "home";
        ++maps;
    }
    const double milliseconds = 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC / maps;
    RecordProperty("processorMillisecondsEach", std::to_string(milliseconds));
    EXPECT_LT(milliseconds, 400); // Several times what it takes with sanitizers.
}

} // namespace skyvane
