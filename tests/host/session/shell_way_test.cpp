#include "host/session/shell_way.h"

#include "desk/bus/names.h"
#include "host/placing/host_file.h"
#include "host/session/desktop_way.h"
#include "tests/host/extension/fake_extension.h"
#include "tests/session/private_bus.h"
#include "tests/session/sway_session.h"
#include "tests/session/wait_for.h"

#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <gtest/gtest.h>

namespace skyvane {

namespace {

/// A shell that shows widgets, on a bus of the test's: its screens have a panel at the top.
class FakeShell : public QDBusVirtualObject {
public:
    explicit FakeShell(QDBusConnection bus) : m_bus(std::move(bus))
    {
        m_bus.registerVirtualObject(BusName::path(BusName::shell()), this);
        m_bus.registerService(BusName::shell());
    }
    ~FakeShell() override
    {
        m_bus.unregisterService(BusName::shell());
        m_bus.unregisterObject(BusName::path(BusName::shell()));
    }
    FakeShell(const FakeShell&) = delete;
    FakeShell& operator=(const FakeShell&) = delete;

    int panel = 32;
    int starts = 0;
    QString focused{};

    void movePanel(int height)
    {
        panel = height;
        m_bus.send(QDBusMessage::createSignal(
            BusName::path(BusName::shell()), BusName::shell(), QStringLiteral("AreasChanged")));
    }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        const QVariantList words = message.arguments();
        QVariantList answer;
        if (message.member() == "Start")
            ++starts;
        else if (message.member() == "Area" && words.value(0) == "lost")
            return connection.send(message.createErrorReply("org.skyvane.Shell.NoScreen", "no screen"));
        else if (message.member() == "Area")
            answer = {0, panel, 800, 600 - panel};
        else if (message.member() == "Focus")
            focused = words.value(0).toString();
        else if (message.member() == "ActivationToken")
            answer = {QStringLiteral("token-%1").arg(words.value(0).toUInt())};
        return connection.send(message.createReply(answer));
    }

private:
    QDBusConnection m_bus;
};

class ShellWayTest : public testing::Test {
protected:
    static QString titleAt(const QPoint& place)
    {
        return QStringLiteral("skyvane:%1:%2,%3")
            .arg(QGuiApplication::primaryScreen()->name())
            .arg(place.x())
            .arg(place.y());
    }

    test::PrivateBus session;
    FakeShell shell{session.connection()};
    std::unique_ptr<DesktopWay> way = ShellWay::way(session.connection());
};

} // namespace

TEST_F(ShellWayTest, aWindowSaysInItsTitleWhereItBelongs)
{
    QWidget window;
    window.setFixedSize(170, 170);
    way->adopt(window);
    way->move(window, {40, 56});
    EXPECT_EQ(window.windowTitle(), titleAt({40, 56}));
    way->move(window, {48, 64});
    EXPECT_EQ(window.windowTitle(), titleAt({48, 64}));
}

TEST_F(ShellWayTest, aNameThatTheWindowIsGivenDoesNotHideItsPlace)
{
    QWidget window;
    way->adopt(window);
    way->move(window, {40, 56});
    window.setWindowTitle("Sky Radar");
    EXPECT_EQ(window.windowTitle(), titleAt({40, 56}));
}

TEST_F(ShellWayTest, theShellSaysWhatPanelsLeaveOfAScreen)
{
    const QScreen& screen = *QGuiApplication::primaryScreen();
    const QPoint corner = screen.geometry().topLeft();
    EXPECT_EQ(way->area(screen), QRect(corner.x(), corner.y() + 32, 800, 568));
    int changes = 0;
    way->onAreaChange([&] { ++changes; });
    shell.movePanel(64);
    EXPECT_TRUE(test::waitFor([&] { return changes == 1; }));
    EXPECT_EQ(way->area(screen).top(), corner.y() + 64);
}

TEST_F(ShellWayTest, aClicksTokenIsTheShells)
{
    QWidget window;
    EXPECT_EQ(way->activationToken(window, 4711), "token-4711");
}

TEST_F(ShellWayTest, theShellGivesTheKeyboard)
{
    QWidget window;
    way->adopt(window);
    way->move(window, {8, 16});
    way->giveKeyboard(window);
    EXPECT_TRUE(test::waitFor([&] { return shell.focused == titleAt({8, 16}); }));
}

TEST(ShellWay, withoutSuchAShellThereIsNoSuchWay)
{
    const test::PrivateBus session;
    EXPECT_EQ(ShellWay::way(session.connection()), nullptr);
    EXPECT_FALSE(ShellWay::isAsked(session.connection()));
    EXPECT_FALSE(ShellWay::isAsked(QDBusConnection{"nobody"}));
}

/// The host as the shell starts it, and as others do.
class HostInShellTest : public ShellWayTest {
protected:
    HostInShellTest()
    {
        std::filesystem::create_directories(program.parent_path());
        std::filesystem::copy_file(SKYVANE_HOST, program);
        const auto widgets = folder.path() / "libexec/skyvane/skyvane-widgets";
        std::filesystem::create_directories(widgets.parent_path());
        std::ofstream{widgets} << "#!/bin/sh\nexec " << extension.program().path.string() << "\n";
        std::filesystem::permissions(widgets, std::filesystem::perms::owner_all);
        std::filesystem::create_directories(folder.path() / "skyvane");
        HostFile{folder.path() / "skyvane/host.json"}.write(
            {.widgets = {{
                 .id = 1,
                 .target = {.kind = "org.example.clock", .family = WidgetFamily::small},
                 .placement = {.screen = "HEADLESS-1", .corner = ScreenCorner::topRight, .inset = {24, 24}},
             }}});
    }

    static QString path(const std::filesystem::path& file) { return QString::fromStdString(file.string()); }

    test::ScratchFolder folder;
    test::FakeExtension extension{"linked"};
    std::filesystem::path program = folder.path() / "bin/skyvane-host";
};

TEST_F(HostInShellTest, startedByTheShellItShowsItsWindowsThereAndFollowsItsPanels)
{
    const test::SwaySession sway;
    sway.start("env",
        {"QT_QPA_PLATFORM=",
            "'DBUS_SESSION_BUS_ADDRESS=" + session.bus().address() + "'", // Its comma would end the command.
            "XDG_CONFIG_HOME=" + path(folder.path()), path(program), ShellWay::option});
    EXPECT_TRUE(test::waitFor([&] { return sway.titles() == QStringList{"skyvane:HEADLESS-1:606,56"}; }))
        << sway.titles().join(' ').toStdString();
    shell.movePanel(48);
    EXPECT_TRUE(test::waitFor([&] { return sway.titles() == QStringList{"skyvane:HEADLESS-1:606,72"}; }));
    EXPECT_EQ(shell.starts, 0);
}

TEST_F(HostInShellTest, startedBesideTheShellItLeavesTheWidgetsToIt)
{
    QProcess host;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("XDG_CONFIG_HOME", path(folder.path()));
    host.setProcessEnvironment(environment);
    host.start(path(program), {"--supervise"});
    EXPECT_TRUE(test::waitFor([&] { return host.state() == QProcess::NotRunning; }));
    EXPECT_EQ(host.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(host.exitCode(), 0);
    EXPECT_EQ(shell.starts, 1);
    EXPECT_TRUE(extension.events("start").empty());
}

} // namespace skyvane
