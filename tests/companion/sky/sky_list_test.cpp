#include "companion/look/range_text.h"
#include "companion/sky/sky_cells.h"
#include "companion/sky/sky_filter.h"
#include "companion/sky/sky_model.h"
#include "companion/sky/sky_words.h"
#include "platform/pinned.h"
#include "platform/text/locale.h"

#include <QAbstractItemModelTester>

#include <gmock/gmock.h>

namespace skyvane {

namespace {

using testing::ElementsAre;

/// The list as the user sees it.
class SkyList : public testing::Test {
protected:
    SkyList() { filter.setSourceModel(&model); }

    void show(std::vector<Aircraft> aircraft)
    {
        model.show(std::move(aircraft), {.distance = "km"}, ScopePalette::standard());
    }

    std::vector<std::string> hexes() const
    {
        std::vector<std::string> list;
        for (int row = 0; row < filter.rowCount(); ++row)
            list.push_back(filter.index(row, 0).data(SkyModel::HexRole).toString().toStdString());
        return list;
    }

    std::vector<std::string> sorted(SkyColumn column, Qt::SortOrder order)
    {
        filter.sort(static_cast<int>(column), order);
        return hexes();
    }

    std::string cell(SkyColumn column) const
    {
        return model.index(0, static_cast<int>(column)).data().toString().toStdString();
    }

    Pinned<Locale> locale{{.numbers = "en_US", .times = "en_GB", .timeZone = "UTC"}};
    SkyModel model;
    SkyFilter filter;
    QAbstractItemModelTester modelTester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
    QAbstractItemModelTester filterTester{&filter, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

Aircraft at(std::string hex, std::optional<double> distanceNM)
{
    return {.hex = std::move(hex), .distanceNM = distanceNM};
}

} // namespace

TEST_F(SkyList, aRowSaysWhatIsKnown)
{
    show({{.hex = "a1b2c3",
        .flight = "UAL123  ",
        .typeCode = "A320",
        .altBaro = Altitude::feet(35000),
        .baroRate = 1216,
        .distanceNM = 10}});
    EXPECT_EQ(cell(SkyColumn::name), "UAL123");
    EXPECT_EQ(cell(SkyColumn::model), "Airbus A320");
    EXPECT_EQ(cell(SkyColumn::operatorName), "United Airlines");
    EXPECT_EQ(cell(SkyColumn::distance), "18.5 km");
    EXPECT_EQ(cell(SkyColumn::altitude), "35,000 ft");
    EXPECT_EQ(cell(SkyColumn::climb), "↑ 1,216 ft/min");
}

TEST_F(SkyList, whatIsNotKnownStaysEmpty)
{
    show({at("a1b2c3", std::nullopt)});
    EXPECT_EQ(cell(SkyColumn::name), "A1B2C3");
    for (const SkyColumn column :
        {SkyColumn::model, SkyColumn::operatorName, SkyColumn::distance, SkyColumn::climb})
        EXPECT_EQ(cell(column), "");
}

TEST_F(SkyList, anEmergencyAndTheMilitaryAreSetApartInWordsToo)
{
    EXPECT_EQ(SkyCells::badge({.hex = "a", .squawk = "7700", .dbFlags = 1}), "Emergency");
    EXPECT_EQ(SkyCells::badge({.hex = "a", .dbFlags = 1}), "Military");
    EXPECT_EQ(SkyCells::badge({.hex = "a", .squawk = "1200"}), "");
}

TEST_F(SkyList, whatIsUnknownComesLastEitherWay)
{
    show({at("near", 1), at("far", 9), at("unknown", std::nullopt)});
    EXPECT_THAT(sorted(SkyColumn::distance, Qt::AscendingOrder), ElementsAre("near", "far", "unknown"));
    EXPECT_THAT(sorted(SkyColumn::distance, Qt::DescendingOrder), ElementsAre("far", "near", "unknown"));
}

TEST_F(SkyList, figuresAreOrderedAsFiguresAndTheGroundIsTheLowest)
{
    show({
        {.hex = "high", .altBaro = Altitude::feet(10000)},
        {.hex = "low", .altBaro = Altitude::feet(900)},
        {.hex = "ground", .altBaro = Altitude::ground(), .altGeom = 5000},
        {.hex = "sunk", .altBaro = Altitude::feet(-100)},
    });
    EXPECT_THAT(
        sorted(SkyColumn::altitude, Qt::AscendingOrder), ElementsAre("ground", "sunk", "low", "high"));
}

TEST_F(SkyList, everyWordOfTheFilterNarrowsTheList)
{
    show({
        {.hex = "a1b2c3", .flight = "UAL123", .typeCode = "A320"},
        {.hex = "a1b2c4", .flight = "UAL124", .typeCode = "B738", .squawk = "4321"},
        {.hex = "3c0001", .flight = "DLH9", .registration = "D-AIPA", .typeCode = "A320"},
    });
    const struct {
        const char* words;
        std::vector<std::string> expected;
    } rows[]{
        {"", {"a1b2c3", "a1b2c4", "3c0001"}},
        {"  ual  ", {"a1b2c3", "a1b2c4"}},
        {"united airbus", {"a1b2c3"}},
        {"d-aipa", {"3c0001"}},
        {"4321", {"a1b2c4"}},
        {"3C00", {"3c0001"}},
        {".*", {}},
    };
    for (const auto& [words, expected] : rows) {
        filter.setWords(words);
        EXPECT_EQ(hexes(), expected) << words;
    }
}

TEST_F(SkyList, aRefreshKeepsTheRowThatOneIsAt)
{
    show({at("one", 1), at("two", 2), at("three", 3), at("four", 4)});
    filter.sort(static_cast<int>(SkyColumn::distance), Qt::AscendingOrder);
    const QPersistentModelIndex current{filter.index(2, 0)};
    show({at("three", 1), at("new", 2), at("two", 3), at("one", 4)});
    EXPECT_THAT(hexes(), ElementsAre("three", "new", "two", "one"));
    ASSERT_TRUE(current.isValid());
    EXPECT_EQ(current.row(), 0);
    EXPECT_EQ(current.data(SkyModel::HexRole).toString(), "three");
}

TEST_F(SkyList, anotherSkyReplacesTheList)
{
    show({at("one", 1), at("two", 2)});
    show({at("three", 1), at("three", 2), at("four", 3)});
    EXPECT_THAT(hexes(), ElementsAre("three", "four"));
    show({});
    EXPECT_THAT(hexes(), ElementsAre());
}

TEST(RangeText, theRangeIsInTheUsersUnit)
{
    const Pinned<Locale> locale{{.numbers = "en_US", .times = "en_GB", .timeZone = "UTC"}};
    EXPECT_EQ(rangeText(25, "nm"), "25 nm");
    EXPECT_EQ(rangeText(25, "km"), "46 km");
    EXPECT_EQ(rangeText(22, "mi"), "25 mi");
    EXPECT_EQ(rangeText(5, "mi"), "5.8 mi");
    EXPECT_EQ(rangeText(1234, "nm"), "1,234 nm");
}

} // namespace skyvane
