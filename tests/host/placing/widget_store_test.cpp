#include "host/placing/widget_store.h"

#include "tests/support/scratch_folder.h"

#include <gmock/gmock.h>

namespace skyvane {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class WidgetStoreTest : public testing::Test {
protected:
    std::vector<PlacedWidget> written() const
    {
        return HostFile{file}.read().value_or(Arrangement{}).widgets;
    }

    test::ScratchFolder folder;
    std::filesystem::path file = folder.path() / "host.json";
    const WidgetTarget clock{.kind = "org.example.clock", .family = WidgetFamily::small};
    const Placement corner{.screen = "one", .corner = ScreenCorner::topRight, .inset = {8, 16}};
};

} // namespace

TEST_F(WidgetStoreTest, theFirstStartIsTheOneWithoutAFile)
{
    WidgetStore store{file};
    EXPECT_TRUE(store.isFirstStart());
    EXPECT_THAT(store.all(), IsEmpty());
    store.remove(store.add(clock, corner).id);
    EXPECT_FALSE(WidgetStore{file}.isFirstStart());
}

TEST_F(WidgetStoreTest, everyChangeIsInTheFileAtOnce)
{
    WidgetStore store{file};
    const PlacedWidget first = store.add(clock, corner);
    EXPECT_THAT(written(), ElementsAre(first));
    EXPECT_EQ(first, (PlacedWidget{.id = 1, .target = clock, .placement = corner}));
    store.resize(1, WidgetFamily::large);
    EXPECT_EQ(written().front().target.family, WidgetFamily::large);
    const Placement elsewhere{.screen = "two", .corner = ScreenCorner::bottomLeft, .inset = {0, 24}};
    store.move(1, elsewhere);
    EXPECT_EQ(written().front().placement, elsewhere);
    EXPECT_EQ(WidgetStore{file}.all(), store.all());
    EXPECT_EQ(store.remove(1)->placement, elsewhere);
    EXPECT_THAT(written(), IsEmpty());
}

TEST_F(WidgetStoreTest, whetherAChangeIsInTheFileIsKnown)
{
    WidgetStore store{file};
    EXPECT_TRUE(store.isSaved());
    store.add(clock, corner);
    EXPECT_TRUE(store.isSaved());
    std::filesystem::remove(file);
    std::filesystem::create_directories(file / "in the way");
    store.add(clock, corner);
    EXPECT_FALSE(store.isSaved());
    store.remove(1);
    EXPECT_FALSE(store.isSaved());
    std::filesystem::remove_all(file);
    store.resize(2, WidgetFamily::large);
    EXPECT_TRUE(store.isSaved());
}

TEST_F(WidgetStoreTest, anIdIsNeverThatOfAWidgetThatStands)
{
    WidgetStore store{file};
    for (const int id : {1, 2, 3})
        EXPECT_EQ(store.add(clock, corner).id, id);
    store.remove(2);
    EXPECT_EQ(store.add(clock, corner).id, 4);
    EXPECT_EQ(store.find(2), nullptr);
    EXPECT_EQ(store.find(4)->id, 4);
}

TEST_F(WidgetStoreTest, aRemovedWidgetIsPutBackUnderItsIdUnlessAnotherHasIt)
{
    WidgetStore store{file};
    store.add(clock, corner);
    const PlacedWidget removed = store.add(clock, corner);
    EXPECT_EQ(store.remove(2), removed);
    EXPECT_EQ(store.putBack(removed), removed);
    EXPECT_EQ(written().back(), removed);
    store.remove(2);
    EXPECT_EQ(store.add(clock, corner).id, 2);
    EXPECT_EQ(store.putBack(removed).id, 3);
}

TEST_F(WidgetStoreTest, whetherPositionsAreLockedIsRemembered)
{
    WidgetStore store{file};
    EXPECT_FALSE(store.isLocked());
    store.setLocked(true);
    EXPECT_TRUE(WidgetStore{file}.isLocked());
    store.setLocked(false);
    EXPECT_FALSE(WidgetStore{file}.isLocked());
}

TEST_F(WidgetStoreTest, whatIsNotThereCannotBeChanged)
{
    WidgetStore store{file};
    EXPECT_FALSE(store.remove(1));
    store.resize(1, WidgetFamily::large);
    store.move(1, corner);
    EXPECT_THAT(store.all(), IsEmpty());
    EXPECT_FALSE(std::filesystem::exists(file));
}

} // namespace skyvane
