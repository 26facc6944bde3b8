#include "host/session/work_area.h"

#include <gmock/gmock.h>

namespace skyvane {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using WorkArea::Strut;

constexpr QSize display{3200, 1080};
constexpr QRect left{0, 0, 1920, 1080};
constexpr QRect right{1920, 56, 1280, 1024};

/// A panel at the top of the left screen, and one at the foot of the right.
const std::vector<Strut>& panels()
{
    static const std::vector<Strut> struts{
        {.edge = Qt::TopEdge, .frame = {0, 0, 1920, 30}},
        {.edge = Qt::BottomEdge, .frame = {1920, 1040, 1280, 40}},
    };
    return struts;
}

} // namespace

TEST(WorkArea, aStrutIsAsLongAsItsPanel)
{
    EXPECT_THAT(
        WorkArea::strutsOf({0, 0, 30, 0, 0, 0, 0, 0, 0, 1919, 0, 0}, display), ElementsAre(panels()[0]));
    EXPECT_THAT(
        WorkArea::strutsOf({0, 0, 0, 40, 0, 0, 0, 0, 0, 0, 1920, 3199}, display), ElementsAre(panels()[1]));
    EXPECT_THAT(WorkArea::strutsOf({50, 0, 0, 0, 100, 599, 0, 0, 0, 0, 0, 0}, display),
        ElementsAre(Strut{.edge = Qt::LeftEdge, .frame = {0, 100, 50, 500}}));
    EXPECT_THAT(WorkArea::strutsOf({0, 64, 0, 0, 0, 0, 56, 1079, 0, 0, 0, 0}, display),
        ElementsAre(Strut{.edge = Qt::RightEdge, .frame = {3136, 56, 64, 1024}}));
}

TEST(WorkArea, theShorterPropertyIsAsLongAsTheDisplay)
{
    EXPECT_THAT(WorkArea::strutsOf({0, 0, 0, 24}, display),
        ElementsAre(Strut{.edge = Qt::BottomEdge, .frame = {0, 1056, 3200, 24}}));
}

TEST(WorkArea, aWindowWithoutStrutsOrWithNonsenseTakesNothing)
{
    EXPECT_THAT(WorkArea::strutsOf({}, display), IsEmpty());
    EXPECT_THAT(WorkArea::strutsOf({0, 0, 0, 0}, display), IsEmpty());
    EXPECT_THAT(WorkArea::strutsOf({1, 2, 3}, display), IsEmpty());
    EXPECT_THAT(WorkArea::strutsOf({0xFFFFFFFF, 0, 0, 0}, display), IsEmpty());
}

TEST(WorkArea, eachScreenLosesItsOwnPanel)
{
    EXPECT_EQ(WorkArea::within(left, {.struts = panels()}), (QRect{0, 30, 1920, 1050}));
    EXPECT_EQ(WorkArea::within(right, {.struts = panels()}), (QRect{1920, 56, 1280, 984}));
}

TEST(WorkArea, aPanelBetweenTwoScreensTakesItsOwnOnly)
{
    const std::vector<Strut> between{{.edge = Qt::LeftEdge, .frame = {0, 56, 1980, 1024}}};
    EXPECT_EQ(WorkArea::within(left, {.struts = between}), left);
    EXPECT_EQ(WorkArea::within(right, {.struts = between}), (QRect{1980, 56, 1220, 1024}));
}

TEST(WorkArea, whatTheManagerSaysOfAScreenCountsToo)
{
    const WorkArea::Taken taken{.struts = {panels()[1]}, .areas = {{0, 32, 1920, 1048}, right}};
    EXPECT_EQ(WorkArea::within(left, taken), (QRect{0, 32, 1920, 1048}));
    EXPECT_EQ(WorkArea::within(right, taken), (QRect{1920, 56, 1280, 984}));
}

} // namespace skyvane
