#include "desk/look/contrast.h"

#include <gtest/gtest.h>

namespace skyvane {

namespace {

constexpr Color phosphor{0.45, 1, 0.6};
constexpr Color red{1, 0.27, 0.23};
constexpr Color amber{1, 0.85, 0.3};
constexpr double enough = 4.5;

} // namespace

TEST(Contrast, isThatOfTheGuidelines)
{
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 1e-6);
    EXPECT_NEAR(contrast(Qt::white, Qt::white), 1, 1e-6);
    EXPECT_NEAR(contrast(QColor{0x77, 0x77, 0x77}, Qt::white), 4.48, 0.01);
}

TEST(Contrast, everyColourCanBeReadOnEveryBackground)
{
    for (const Color& color : {phosphor, red, amber, Color{0, 0, 0}, Color{1, 1, 1}, Color{0, 0, 1}}) {
        for (const QColor& background : {QColor{Qt::white}, QColor{Qt::black}, QColor{0x15, 0x17, 0x1a},
                 QColor{0xef, 0xef, 0xef}, QColor{0x80, 0x80, 0x80}})
            EXPECT_GE(contrast(legible(color, background), background), enough)
                << background.name().toStdString();
    }
}

TEST(Contrast, whatCanBeReadStaysAsItIs)
{
    EXPECT_EQ(legible(phosphor, Qt::black), QColor::fromRgbF(0.45F, 1, 0.6F));
    EXPECT_EQ(legible(amber, QColor{0x15, 0x17, 0x1a}), QColor::fromRgbF(1, 0.85F, 0.3F));
}

TEST(Contrast, aDarkenedColourKeepsItsHue)
{
    EXPECT_NEAR(legible(phosphor, Qt::white).hueF(), QColor::fromRgbF(0.45F, 1, 0.6F).hueF(), 0.01);
}

TEST(Contrast, anOutlineIsSeenOnEveryWindow)
{
    for (const QColor& window : {QColor{Qt::white}, QColor{Qt::black}, QColor{0x1b, 0x1d, 0x21},
             QColor{0xef, 0xef, 0xef}, QColor{0x80, 0x80, 0x80}})
        EXPECT_GE(contrast(outlineOn(QPalette{window, window}), window), 3) << window.name().toStdString();
}

} // namespace skyvane
