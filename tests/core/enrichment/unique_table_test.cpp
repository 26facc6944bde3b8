#include "core/enrichment/unique_table.h"

#include <gtest/gtest.h>

#include <array>
#include <csignal>
#include <string>

namespace skyvane {
namespace {

TEST(UniqueTable, holdsEveryRowInRoomReservedForAll)
{
    const auto rows = std::to_array<TableRow>({{"A", "one"}, {"B", "two"}, {"C", "one"}});
    const TextTable table = uniqueTable(rows);
    EXPECT_EQ(table, (TextTable{{"A", "one"}, {"B", "two"}, {"C", "one"}}));
    EXPECT_GE(static_cast<double>(table.bucket_count()) * table.max_load_factor(), 3);
}

TEST(UniqueTable, anEmptyListMakesAnEmptyTable)
{
    EXPECT_TRUE(uniqueTable({}).empty());
}

TEST(UniqueTable, findsATextOfAnyKindByExactEquality)
{
    const TextTable table = uniqueTable(std::to_array<TableRow>({{"F50", "Fokker 50"}}));
    EXPECT_EQ(valueIn(table, std::string{"F50"}), "Fokker 50");
    EXPECT_EQ(valueIn(table, std::string_view{"F500"}.substr(0, 3)), "Fokker 50");
    EXPECT_EQ(valueIn(table, "f50"), std::nullopt);
    EXPECT_EQ(valueIn(table, "F5"), std::nullopt);
    EXPECT_EQ(valueIn(table, ""), std::nullopt);
    EXPECT_EQ(valueIn(table, std::string_view{"F50\0", 4}), std::nullopt);
}

TEST(UniqueTableDeathTest, aRepeatedKeyStopsTheProcess)
{
    const auto rows = std::to_array<TableRow>({{"A", "one"}, {"B", "two"}, {"A", "one"}});
    EXPECT_EXIT(uniqueTable(rows), testing::KilledBySignal(SIGABRT), "");
}

} // namespace
} // namespace skyvane
