#include "companion/look/credits.h"
#include "companion/look/link_label.h"
#include "companion/settings/swatch_button.h"
#include "companion/sky/sky_table.h"
#include "companion/window/header_bar.h"
#include "desk/look/appearance.h"
#include "desk/look/contrast.h"
#include "tests/session/fake_portal.h"
#include "tests/session/private_bus.h"
#include "tests/session/wait_for.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QToolButton>
#include <QToolTip>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace skyvane {

namespace {

constexpr double enoughForText = 4.5;
constexpr double enoughForControls = 3;

/// As a half transparent colour looks on the other.
QColor over(const QColor& color, const QColor& background)
{
    const auto mix
        = [&](float one, float other) { return one * color.alphaF() + other * (1 - color.alphaF()); };
    return QColor::fromRgbF(mix(color.redF(), background.redF()), mix(color.greenF(), background.greenF()),
        mix(color.blueF(), background.blueF()));
}

/// The most that any pixel of the picture is set apart from the colour.
double mostContrast(const QImage& picture, const QColor& color)
{
    double most = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            most = std::max(most, contrast(picture.pixelColor(x, y), color));
    }
    return most;
}

/// What is seen along a line of so many pixels from a control's left edge, half-way up.
QImage leftEdge(const QImage& picture, const QRect& control, int length = 4)
{
    return picture.copy(control.left(), control.center().y(), length, 1);
}

/// Light at first, and dark while every window stays.
class VisibilityTest : public testing::TestWithParam<bool> {
protected:
    VisibilityTest() { column->setContentsMargins(20, 20, 20, 20); }
    ~VisibilityTest() override
    {
        QApplication::setStyle(QStringLiteral("fusion"));
        QApplication::setPalette(before);
        QToolTip::setPalette(before);
    }

    template <class Control>
    Control& show(Control* control)
    {
        column->addWidget(control);
        window.show();
        if (!appearance) {
            appearance.emplace(session.connection());
            portal.change(GetParam() ? 1 : 2);
        }
        EXPECT_TRUE(test::waitFor([&] {
            return (background().lightness() < 128) == GetParam() && control->isVisible()
                && control->palette().color(QPalette::Window) == background();
        }));
        column->activate();
        return *control;
    }

    static QColor background() { return QApplication::palette().color(QPalette::Window); }

    /// A control of the window as it is seen.
    QImage pictureOf(const QWidget& control)
    {
        return window.grab({control.mapTo(&window, QPoint{}), control.size()}).toImage();
    }

    /// Whether a control's frame is seen at its left edge.
    bool isOutlined(const QWidget& control, const QRect& frame)
    {
        return mostContrast(leftEdge(pictureOf(control), frame), background()) >= enoughForControls;
    }

    QPalette before = QApplication::palette();
    test::PrivateBus session;
    test::FakePortal portal{session.other(), 0};
    std::optional<Appearance> appearance;
    QWidget window;
    QVBoxLayout* column = new QVBoxLayout{&window};
};

std::string lightOrDark(const testing::TestParamInfo<bool>& info)
{
    return info.param ? "dark" : "light";
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Appearance, VisibilityTest, testing::Bool(), lightOrDark);

TEST_P(VisibilityTest, everyTextCanBeRead)
{
    show(new QWidget);
    const struct {
        QPalette::ColorRole text;
        std::vector<QPalette::ColorRole> backgrounds;
    } rows[]{
        {QPalette::WindowText, {QPalette::Window, QPalette::AlternateBase}},
        {QPalette::Text, {QPalette::Base, QPalette::AlternateBase}},
        {QPalette::ButtonText, {QPalette::Button, QPalette::Window}},
        {QPalette::HighlightedText, {QPalette::Highlight}},
        {QPalette::PlaceholderText, {QPalette::Window, QPalette::Base, QPalette::AlternateBase}},
        {QPalette::ToolTipText, {QPalette::ToolTipBase}},
        {QPalette::Link, {QPalette::Window, QPalette::Base}},
        {QPalette::LinkVisited, {QPalette::Window, QPalette::Base}},
    };
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        for (const auto& [text, backgrounds] : rows) {
            for (const QPalette::ColorRole role : backgrounds) {
                const QPalette palette = QApplication::palette();
                const QColor background = palette.color(group, role);
                EXPECT_GE(contrast(over(palette.color(group, text), background), background), enoughForText)
                    << text << " on " << role;
            }
        }
    }
    EXPECT_EQ(QToolTip::palette().color(QPalette::ToolTipBase),
        QApplication::palette().color(QPalette::ToolTipBase));
}

TEST_P(VisibilityTest, checkBoxesAndRadioButtonsAreOutlined)
{
    const auto frameOf = [](const QAbstractButton& button, QStyle::SubElement indicator) {
        QStyleOptionButton option;
        option.initFrom(&button);
        return button.style()->subElementRect(indicator, &option, &button);
    };
    const auto& box = show(new QCheckBox{"Show"});
    EXPECT_TRUE(isOutlined(box, frameOf(box, QStyle::SE_CheckBoxIndicator)));
    const auto& radio = show(new QRadioButton{"Miles"});
    EXPECT_TRUE(isOutlined(radio, frameOf(radio, QStyle::SE_RadioButtonIndicator)));
}

TEST_P(VisibilityTest, aCheckMarkIsSeenInItsBox)
{
    auto& box = show(new QCheckBox);
    const QColor field = QApplication::palette().color(QPalette::Base);
    const auto middle = [&] {
        const QImage picture = pictureOf(box);
        return picture.copy(4, picture.height() / 2 - 3, 7, 7);
    };
    EXPECT_LT(mostContrast(middle(), field), 1.5);
    box.setChecked(true);
    EXPECT_GE(mostContrast(middle(), field), enoughForControls);
}

TEST_P(VisibilityTest, buttonsAndFieldsAreOutlined)
{
    const auto& button = show(new QPushButton{"Locate Me"});
    EXPECT_TRUE(isOutlined(button, button.rect()));
    auto& field = show(new QLineEdit{"51.4779"});
    EXPECT_TRUE(isOutlined(field, field.rect()));
    field.setFocus();
    EXPECT_TRUE(test::waitFor([&] {
        window.activateWindow();
        return field.hasFocus();
    }));
    EXPECT_TRUE(isOutlined(field, field.rect()));
}

TEST_P(VisibilityTest, slidersAndScrollBarsAreOutlined)
{
    const auto& slider = show(new QSlider{Qt::Horizontal});
    EXPECT_TRUE(isOutlined(slider, slider.rect())) << "its handle, at the left";
    const QImage groove = pictureOf(slider).copy(slider.width() / 2, 0, 1, slider.height());
    EXPECT_GE(mostContrast(groove, background()), enoughForControls);
    auto* bar = new QScrollBar{Qt::Horizontal};
    bar->setRange(0, 100);
    bar->setPageStep(100);
    show(bar);
    const QImage handle = pictureOf(*bar).copy(bar->width() / 4, 0, 1, bar->height());
    EXPECT_GE(mostContrast(handle, background()), enoughForControls);
}

TEST_P(VisibilityTest, aSwatchInTheColourOfTheWindowIsOutlined)
{
    auto& swatch = show(new SwatchButton{Qt::black, "Colour"});
    swatch.setColor(background());
    EXPECT_GE(mostContrast(pictureOf(swatch), background()), enoughForControls);
}

TEST_P(VisibilityTest, theHeadsOfTheListAreInItsColours)
{
    auto& table = show(new SkyTable);
    const QPalette palette = QApplication::palette();
    const QImage heads = pictureOf(*table.horizontalHeader());
    EXPECT_EQ(heads.pixelColor(1, 1), palette.color(QPalette::Base));
    EXPECT_EQ(heads.pixelColor(heads.width() - 2, 1), palette.color(QPalette::Base));
    EXPECT_GE(mostContrast(heads, palette.color(QPalette::Base)), enoughForText);
}

TEST_P(VisibilityTest, theMenuIsSeenAlsoUnderThePointer)
{
    QAction action;
    const auto& bar = show(new HeaderBar{{.back = &action, .refresh = &action, .menu = {&action}}});
    auto* menu = bar.findChildren<QToolButton*>().last();
    for (const bool isUnderPointer : {false, true}) {
        menu->setAttribute(Qt::WA_UnderMouse, isUnderPointer);
        const QImage picture = pictureOf(*menu);
        EXPECT_GE(mostContrast(picture, picture.pixelColor(6, 6)), enoughForText) << isUnderPointer;
    }
}

TEST_P(VisibilityTest, linksCanBeRead)
{
    auto* label = new LinkLabel{Credits::aircraft()};
    QFont font = label->font();
    font.setPointSize(30); // With strokes that fill pixels.
    label->setFont(font);
    show(label);
    EXPECT_GE(mostContrast(pictureOf(*label), background()), enoughForText);
}

} // namespace skyvane
