#include "desk/look/appearance.h"
#include "desk/look/contrast.h"
#include "tests/session/fake_portal.h"
#include "tests/session/private_bus.h"
#include "tests/session/wait_for.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace skyvane {

namespace {

class AppearanceTest : public testing::Test {
protected:
    ~AppearanceTest() override
    {
        QApplication::setStyle(QStringLiteral("fusion"));
        QApplication::setPalette(before);
    }

    static bool comesToBeDark(bool isDark)
    {
        return test::waitFor(
            [&] { return (QApplication::palette().color(QPalette::Window).lightness() < 128) == isDark; });
    }

    QPalette before = QApplication::palette();
    test::PrivateBus session;
};

} // namespace

TEST_F(AppearanceTest, theDesktopsChoiceIsFollowed)
{
    test::FakePortal portal{session.other(), 1};
    const Appearance appearance{session.connection()};
    EXPECT_TRUE(comesToBeDark(true));
    portal.change(2);
    EXPECT_TRUE(comesToBeDark(false));
    portal.change(1);
    EXPECT_TRUE(comesToBeDark(true));
    portal.change(0);
    EXPECT_TRUE(comesToBeDark(false));
}

TEST_F(AppearanceTest, aDesktopThatSpeaksLateIsFollowedToo)
{
    const Appearance appearance{session.connection()};
    test::FakePortal portal{session.other(), 0};
    portal.change(1);
    EXPECT_TRUE(comesToBeDark(true));
    EXPECT_EQ(QApplication::palette().color(QPalette::Base), Appearance::darkPalette().color(QPalette::Base));
}

TEST_F(AppearanceTest, aProgramThatIsDarkFromTheStartBecomesLightWhenTheUserChoosesSo)
{
    QApplication::setPalette(Appearance::darkPalette());
    test::FakePortal portal{session.other(), 0};
    const Appearance appearance{session.connection()};
    // Before it knows whose signals are the portal's, it hears none.
    ASSERT_TRUE(test::waitFor([&] { return portal.answers() == 2; }));
    portal.change(1);
    EXPECT_TRUE(comesToBeDark(true));
    portal.change(2);
    EXPECT_TRUE(comesToBeDark(false));
    EXPECT_GE(contrast(QApplication::palette().color(QPalette::WindowText),
                  QApplication::palette().color(QPalette::Window)),
        7);
}

TEST_F(AppearanceTest, aHigherContrastIsFollowedInDarkAndLight)
{
    test::FakePortal portal{session.other(), 2};
    const Appearance appearance{session.connection()};
    portal.changeContrast(1);
    const auto isStark = [] {
        const QPalette palette = QApplication::palette();
        const QColor window = palette.color(QPalette::Window);
        return contrast(palette.color(QPalette::PlaceholderText), window) > 20
            && contrast(palette.color(QPalette::Link), window) >= 7;
    };
    EXPECT_TRUE(test::waitFor(isStark));
    portal.change(1);
    EXPECT_TRUE(comesToBeDark(true));
    EXPECT_TRUE(isStark());
    portal.changeContrast(0);
    EXPECT_TRUE(test::waitFor([&] { return !isStark(); }));
}

} // namespace skyvane
