#include "companion/alerts/alert_store.h"
#include "companion/host_switch/host_control.h"
#include "companion/look/elided_label.h"
#include "companion/sky/cell_delegate.h"
#include "companion/window/main_window.h"
#include "platform/text/localized.h"
#include "tests/companion/companion_stage.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QToolButton>

#include <gtest/gtest.h>

#include <cstdlib>

namespace skyvane {

namespace {

/// The user's language for the time of a test.
class Language {
public:
    explicit Language(const std::string& name)
    {
        setenv("LC_ALL", name.c_str(), 1);
        useCatalogues(SKYVANE_CATALOGUES);
    }
    ~Language()
    {
        unsetenv("LC_ALL");
        useCatalogues("/nonexistent");
    }
    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;
};

struct Setting {
    std::string language;
    QSize size;
    double textScale = 1;
};

/// The window in each language and size that people have.
class RoomTest : public testing::TestWithParam<Setting> {
protected:
    RoomTest()
    {
        QFont large = before;
        large.setPointSizeF(large.pointSizeF() * GetParam().textScale);
        QApplication::setFont(large);
        stage.server.answer(test::feedPath, {.body = test::threeAircraft});
        window.emplace(WindowParts{
            .feed = feed,
            .lookups = lookups,
            .host = host,
            .alerts = alerts,
            .fonts = stage.fonts,
            .systemBus = bus,
            .open = [](const QUrl&) {},
            .showSampleAlert = [] {},
            .autostart = {},
            .memory = stage.scratch.path() / "config/skyvane/companion.ini",
        });
        window->resize(GetParam().size);
        window->show();
    }
    ~RoomTest() override { QApplication::setFont(before); }

    /// The texts that are cut, as far as they are shown.
    std::vector<std::string> cut() const
    {
        QApplication::processEvents();
        std::vector<std::string> texts;
        for (const QLabel* label : window->findChildren<QLabel*>()) {
            if (label->isVisible() && qobject_cast<const ElidedLabel*>(label) == nullptr && !isWhole(*label))
                texts.push_back(label->text().toStdString());
        }
        for (const QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
            if (button->isVisible() && !button->text().isEmpty() && !isIcon(*button)
                && (button->width() < button->sizeHint().width() || !isInside(*button)))
                texts.push_back(button->text().toStdString());
        }
        for (const QHeaderView* header : window->findChildren<QHeaderView*>()) {
            if (header->isVisible())
                addCutHeads(*header, texts);
        }
        return texts;
    }

    QFont before = QApplication::font();
    Language language{GetParam().language};
    test::CompanionStage stage;
    SkyFeed feed{stage.errands, stage.pacer.transport()};
    Lookups lookups{stage.errands, stage.decode, stage.pacer.transport()};
    QDBusConnection bus{"none"};
    HostControl host{bus, "/nowhere/skyvane-host"};
    AlertStore alerts{stage.scratch.path() / "config/skyvane/alerts.json"};
    std::optional<MainWindow> window;

private:
    bool isInside(const QWidget& widget) const
    {
        const int left = widget.mapTo(&*window, QPoint{}).x();
        return left >= 0 && left + widget.width() <= window->width();
    }

    bool isWhole(const QLabel& label) const
    {
        if (label.text().isEmpty())
            return true;
        if (!isInside(label))
            return false;
        if (label.wordWrap())
            return label.height() >= label.heightForWidth(label.width());
        return label.width() >= label.sizeHint().width();
    }

    static bool isIcon(const QAbstractButton& button)
    {
        const auto* tool = qobject_cast<const QToolButton*>(&button);
        return tool != nullptr && tool->toolButtonStyle() == Qt::ToolButtonIconOnly;
    }

    static void addCutHeads(const QHeaderView& header, std::vector<std::string>& texts)
    {
        for (int section = 0; section < header.count(); ++section) {
            const QString text = header.model()->headerData(section, Qt::Horizontal).toString();
            if (!header.isSectionHidden(section)
                && header.sectionSize(section)
                    < header.fontMetrics().horizontalAdvance(text) + 2 * CellDelegate::margin)
                texts.push_back(text.toStdString());
        }
    }
};

std::vector<Setting> settings()
{
    std::vector<Setting> all;
    for (const char* language : {"en_US.UTF-8", "de_DE.UTF-8", "es_ES.UTF-8", "fr_FR.UTF-8"}) {
        for (const QSize size : {QSize{640, 480}, QSize{1024, 600}, QSize{1366, 768}, QSize{3000, 2000}})
            all.push_back({.language = language, .size = size});
    }
    all.push_back({.language = "de_DE.UTF-8", .size = {1024, 600}, .textScale = 1.5});
    return all;
}

std::string settingName(const testing::TestParamInfo<Setting>& info)
{
    const auto& [language, size, scale] = info.param;
    return language.substr(0, 2) + "_" + std::to_string(size.width()) + "_" + std::to_string(size.height())
        + (scale > 1 ? "_large" : "");
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Everywhere, RoomTest, testing::ValuesIn(settings()), settingName);

TEST_P(RoomTest, noTextOfTheListIsCut)
{
    EXPECT_TRUE(test::waitFor([&] { return feed.report().hasAnswer; }));
    EXPECT_EQ(cut(), std::vector<std::string>{});
}

TEST_P(RoomTest, noTextOfAnAircraftIsCut)
{
    window->showAircraft("~4ca7b4");
    EXPECT_TRUE(test::waitFor([&] { return feed.report().hasAnswer; }));
    EXPECT_EQ(cut(), std::vector<std::string>{});
}

TEST_P(RoomTest, noTextOfTheSettingsOrOfTellMeWhenIsCut)
{
    window->showAlerts();
    EXPECT_EQ(cut(), std::vector<std::string>{});
    window->showSettings();
    EXPECT_EQ(cut(), std::vector<std::string>{});
}

TEST_P(RoomTest, noTextOfAFailureIsCut)
{
    for (const char* source : {test::feedPath, "/"})
        stage.server.answer(source, {.status = 429});
    EXPECT_TRUE(test::waitFor([&] {
        feed.refresh();
        return !feed.report().problem.empty();
    }));
    EXPECT_EQ(cut(), std::vector<std::string>{});
}

} // namespace skyvane
