#include "companion/atlas/own_names.h"

#include "tests/platform/text/compiled_catalogue.h"
#include "tests/support/scratch_folder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace skyvane {

namespace {

void write(const std::filesystem::path& folder, const std::string& language, const std::string& bytes)
{
    const auto place = folder / language / "LC_MESSAGES";
    std::filesystem::create_directories(place);
    std::ofstream{place / "libgweather-4.0-locations.mo", std::ios::binary} << bytes;
}

} // namespace

TEST(OwnNames, areThoseOfTheFirstLanguageThatHasAny)
{
    const test::ScratchFolder scratch;
    write(scratch.path(), "de",
        test::compiled(
            {{"", "header"}, {"Munich", "München"}, {"City in Idaho, United States\4Moscow", "Moscow"},
                {"City in Russia\4Moscow", "Moskau"}, {"State in Nowhere\4Berne", "Nirgends"}},
            test::ByteOrder::little));
    const auto names = Atlas::ownNames(scratch.path(), {"gsw", "de"});
    EXPECT_EQ(names.at("Munich"), "München");
    EXPECT_EQ(names.at("Moscow"), "Moskau");
    EXPECT_FALSE(names.contains("Berne"));
    EXPECT_TRUE(Atlas::ownNames(scratch.path(), {"fr"}).empty());
    EXPECT_TRUE(Atlas::ownNames(scratch.path(), {}).empty());
}

TEST(OwnNames, ofABrokenCatalogueAreNone)
{
    const test::ScratchFolder scratch;
    write(scratch.path(), "de", "no catalogue");
    EXPECT_TRUE(Atlas::ownNames(scratch.path(), {"de"}).empty());
}

} // namespace skyvane
