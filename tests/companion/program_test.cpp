#include "tests/companion/own_machine.h"
#include "tests/companion/program_fixture.h"
#include "tests/support/surroundings.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>

#include <gmock/gmock.h>

#include <csignal>

namespace skyvane {

namespace {

using test::companionName;
using test::CompanionProgram;
using testing::HasSubstr;

} // namespace

TEST_F(CompanionProgram, theFirstStartShowsTheSettingsAndTheNextTheSky)
{
    SharedState::clear();
    start(first);
    EXPECT_TRUE(isCalled("Settings"));
    EXPECT_EQ(server.connectionCount(), 0U);
    end(first);
    test::CompanionStage::setHome();
    start(first);
    EXPECT_TRUE(isCalled("The sky over Home"));
    EXPECT_TRUE(isAsked("/v2/point/51.50000/-0.12000/25"));
}

TEST_F(CompanionProgram, aLinkOpensItsAircraft)
{
    start(first, {"skyvane://aircraft/a1b2c3"});
    EXPECT_TRUE(isCalled("UAL123"));
    EXPECT_TRUE(isAsked("/pub/photos/hex/a1b2c3"));
    EXPECT_TRUE(isAsked("/v0/callsign/UAL123"));
    press("alt+Left");
    EXPECT_TRUE(isCalled("The sky over Home"));
}

TEST_F(CompanionProgram, aLinkThatLeadsNowhereOpensTheSkyAndAsksNobody)
{
    for (const QString& link :
        {QString{"skyvane://"}, QString{"skyvane://aircraft/"}, QString{"skyvane://settings"},
            QString{"skyvane://aircraft/"} + QString{2048, 'a'}, QString{"skyvane://aircraft/a\x01\nb"}}) {
        start(first, {link});
        EXPECT_TRUE(isCalled("The sky over Home")) << link.toStdString();
        end(first);
    }
    EXPECT_EQ(server.connectionCount(), 0U);
}

TEST_F(CompanionProgram, aSecondStartIsHandedToTheFirst)
{
    start(first);
    ASSERT_TRUE(isCalled("The sky over Home"));
    QProcess second;
    ended(second, {"skyvane://aircraft/ae0001"}, "launcher_TIME12345678");
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_TRUE(isCalled("RCH285"));
    QProcess third;
    ended(third, {"--settings"});
    EXPECT_TRUE(isCalled("Settings"));
    QProcess fourth;
    ended(fourth, {"--alerts"});
    EXPECT_TRUE(isCalled("Tell me when…"));
    QProcess fifth;
    ended(fifth, {"skyvane://aircraft/"});
    EXPECT_TRUE(isCalled("The sky over Home"));
    EXPECT_EQ(first.state(), QProcess::Running);
}

TEST_F(CompanionProgram, aSecondStartBringsTheFirstToTheFront)
{
    start(first);
    ASSERT_TRUE(isCalled("The sky over Home"));
    QProcess other;
    other.setProcessEnvironment(session.environment());
    other.setStandardOutputFile(QProcess::nullDevice());
    other.start("xev", {"-geometry", "1200x800+10+10"});
    ASSERT_TRUE(test::waitFor([&] { return session.stacking().size() == 2; }));
    const auto own = std::stoul(window());
    ASSERT_TRUE(test::waitFor([&] { return session.stacking().back() != own; }));
    QProcess second;
    ended(second);
    EXPECT_TRUE(test::waitFor([&] { return session.stacking().back() == own; }));
    EXPECT_TRUE(test::waitFor(
        [&] { return session.run("xdotool", {"getactivewindow"}) == std::to_string(own) + "\n"; }));
    end(other);
}

TEST_F(CompanionProgram, theDesktopReachesItOverTheBus)
{
    start(first, {"--service"});
    ASSERT_TRUE(test::waitFor([&] { return bus.interface()->isServiceRegistered(companionName); }));
    const QVariantMap data{{"activation-token", "launcher_TIME1"}};
    EXPECT_EQ(server.connectionCount(), 0U);
    EXPECT_EQ(
        call("Open", {QStringList{"skyvane://aircraft/a1b2c3"}, data}).type(), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(isCalled("UAL123"));
    EXPECT_EQ(call("ActivateAction", {"settings", QVariantList{}, data}).type(), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(isCalled("Settings"));
    EXPECT_EQ(call("Activate", {data}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(call("ActivateAction", {"explode", QVariantList{}, data}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(call("Open", {"no list"}).type(), QDBusMessage::ErrorMessage);
    EXPECT_TRUE(isCalled("Settings"));
}

TEST_F(CompanionProgram, theKeyboardLeadsEverywhere)
{
    start(first);
    ASSERT_TRUE(isCalled("The sky over Home"));
    ASSERT_TRUE(isAsked(test::feedPath));
    ASSERT_TRUE(test::waitFor([&] {
        press("Down");
        press("Return");
        return title() != "The sky over Home – Skyvane\n";
    }));
    press("Escape");
    EXPECT_TRUE(isCalled("The sky over Home"));
    press("ctrl+comma");
    EXPECT_TRUE(isCalled("Settings"));
    press("ctrl+f");
    EXPECT_TRUE(isCalled("The sky over Home"));
    const std::size_t asked = server.requests().size();
    press("F5");
    EXPECT_TRUE(test::waitFor([&] { return server.requests().size() > asked; }));
    press("ctrl+q");
    EXPECT_TRUE(test::waitFor([&] { return first.state() == QProcess::NotRunning; }));
    EXPECT_EQ(first.exitCode(), 0);
}

TEST_F(CompanionProgram, theWindowIsBackInItsPlace)
{
    start(first);
    ASSERT_TRUE(isCalled("The sky over Home"));
    const QString id = QString::fromStdString(window());
    session.run("xdotool", {"windowsize", id, "900", "600", "windowmove", id, "150", "120"});
    EXPECT_TRUE(test::waitFor([&] { return session.frameOf(window()).size() == QSize(900, 600); }));
    press("ctrl+q");
    EXPECT_TRUE(test::waitFor([&] { return first.state() == QProcess::NotRunning; }));
    start(first);
    ASSERT_TRUE(isCalled("The sky over Home"));
    EXPECT_TRUE(test::waitFor([&] { return session.frameOf(window()).size() == QSize(900, 600); }));
}

TEST_F(CompanionProgram, withoutADisplayItEndsWithOneLine)
{
    for (const QString display : {"", ":59999"}) {
        session.set("DISPLAY", display);
        QProcess lost;
        lost.setProcessEnvironment(session.environment());
        lost.start(SKYVANE_COMPANION, {"skyvane://open"});
        lost.waitForFinished();
        EXPECT_EQ(lost.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(lost.exitCode(), 1);
        EXPECT_EQ(lost.readAllStandardError().toStdString(),
            "skyvane: no display: none is found by DISPLAY=" + display.toStdString()
                + ", QT_QPA_PLATFORM=xcb\n");
    }
}

TEST_F(CompanionProgram, aDisplayThatGoesEndsItWithOneLine)
{
    first.setProcessEnvironment(session.environment());
    first.start(SKYVANE_COMPANION, QStringList{});
    ASSERT_TRUE(isCalled("The sky over Home"));
    session.endServer();
    EXPECT_TRUE(test::waitFor([&] { return first.state() == QProcess::NotRunning; }));
    EXPECT_EQ(first.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(first.exitCode(), 1);
    EXPECT_EQ(first.readAllStandardError().count('\n'), 1);
}

TEST_F(CompanionProgram, whatTheToolkitSaysOnTheWayToADisplayIsSaid)
{
    session.set("QT_QPA_PLATFORM", "nonsense;xcb");
    first.setProcessEnvironment(session.environment());
    first.start(SKYVANE_COMPANION, QStringList{});
    QByteArray said;
    EXPECT_TRUE(test::waitFor([&] { return (said += first.readAllStandardError()).contains("nonsense"); }));
    EXPECT_TRUE(isCalled("The sky over Home"));
}

TEST_F(CompanionProgram, mistakesOnTheCommandLineAreSaid)
{
    QProcess mistaken;
    mistaken.setProcessChannelMode(QProcess::MergedChannels);
    mistaken.start(SKYVANE_COMPANION, {"--nonsense"});
    mistaken.waitForFinished();
    EXPECT_EQ(mistaken.exitCode(), 2);
    EXPECT_THAT(mistaken.readAll().toStdString(), HasSubstr("\"--nonsense\""));
    QProcess asked;
    EXPECT_THAT(ended(asked, {"--version"}).toStdString(), testing::StartsWith("skyvane "));
    EXPECT_EQ(asked.exitCode(), 0);
}

} // namespace skyvane

int main(int argc, char* argv[])
{
    skyvane::test::enterOwnSurroundings();
    testing::InitGoogleTest(&argc, argv);
    std::signal(SIGPIPE, SIG_IGN);
    testing::AddGlobalTestEnvironment(&skyvane::test::OwnMachine::instance());
    const QCoreApplication application{argc, argv};
    return RUN_ALL_TESTS();
}
