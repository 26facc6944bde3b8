#include "desk/alerts/alert_choices_file.h"
#include "tests/host/desktop/desktop_fixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gmock/gmock.h>

namespace skyvane {

namespace {

using testing::HasSubstr;

/// The desktop in a session with a real notification service, and an extension that reports 700 emergencies.
class AlertsOnDesktopTest : public DesktopTest {
protected:
    AlertsOnDesktopTest() : DesktopTest("alarming")
    {
        more = {path(folder.path())};
        const auto settings = folder.path() / "dunstrc";
        std::ofstream{settings} << "[global]\nhistory_length = 1000\nnotification_limit = 1000\n";
        service.setProcessEnvironment(session.environment());
        service.setStandardErrorFile(QProcess::nullDevice());
        service.start("dunst", {"-conf", path(settings)});
        EXPECT_TRUE(test::waitFor([&] { return count("displayed") == 0; }));
    }
    ~AlertsOnDesktopTest() override
    {
        service.terminate();
        service.waitForFinished();
    }

    void choose(const AlertChoices& choices) const
    {
        AlertChoicesFile::write(folder.path() / "alerts.json", choices);
    }

    /// -1 while the service is not there.
    int count(const QString& what) const
    {
        const auto text = session.run("dunstctl", {"count", what});
        return text.empty() ? -1 : std::stoi(text);
    }

    bool isShown(int wanted) const
    {
        return test::waitFor([&] { return count("displayed") == wanted; });
    }

    /// The texts of all that was shown, the latest first, after they were closed.
    std::vector<std::string> closed() const
    {
        session.run("dunstctl", {"close-all"});
        const auto text = session.run("dunstctl", {"history"});
        std::vector<std::string> messages;
        const auto root = QJsonDocument::fromJson(QByteArray::fromStdString(text)).object();
        for (const QJsonValue one : root["data"].toArray().at(0).toArray())
            messages.push_back(one["message"].toObject()["data"].toString().toStdString());
        return messages;
    }

    QProcess service;
};

} // namespace

TEST_F(AlertsOnDesktopTest, aHostileSkyIsThreeCalmNotificationsOfPlainText)
{
    choose({.emergency = true});
    ASSERT_TRUE(start(3));
    ASSERT_TRUE(isShown(3));
    const auto messages = closed();
    ASSERT_EQ(messages.size(), 3U);
    EXPECT_THAT(messages[0], HasSubstr("and 697 more"));
    for (const std::string& message : messages) {
        EXPECT_THAT(message, HasSubstr("‹b›No. "));
        EXPECT_LT(message.size(), 500U);
    }
}

TEST_F(AlertsOnDesktopTest, nothingIsToldTwiceAfterARestart)
{
    choose({.emergency = true});
    ASSERT_TRUE(start(3));
    ASSERT_TRUE(isShown(3));
    end();
    ASSERT_TRUE(start(3));
    EXPECT_TRUE(test::waitFor([&] { return extension.events("\"alerts\"").size() == 2; }));
    EXPECT_FALSE(test::waitFor([&] { return count("displayed") != 3; }, std::chrono::seconds{1}));
}

TEST_F(AlertsOnDesktopTest, withNothingChosenNothingIsAskedForAndNothingTold)
{
    ASSERT_TRUE(start(3));
    EXPECT_TRUE(test::waitFor([&] { return !extension.events("widgets.timelines").empty(); }));
    EXPECT_TRUE(extension.events("alerts").empty());
    EXPECT_FALSE(test::waitFor([&] { return count("displayed") != 0; }, std::chrono::milliseconds{500}));
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "told.json"));
}

TEST_F(AlertsOnDesktopTest, aClickOpensTheAircraft)
{
    choose({.emergency = true});
    ASSERT_TRUE(start(3));
    ASSERT_TRUE(isShown(3));
    session.run("dunstctl", {"action"});
    EXPECT_TRUE(test::waitFor([&] { return host.bytesAvailable() > 0; }));
    EXPECT_THAT(host.readLine().toStdString(), testing::StartsWith("skyvane://aircraft/"));
}

} // namespace skyvane
