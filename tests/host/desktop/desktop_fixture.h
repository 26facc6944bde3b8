#pragma once

#include "host/placing/host_file.h"
#include "tests/host/extension/fake_extension.h"
#include "tests/session/wait_for.h"
#include "tests/session/x_session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

namespace skyvane {

/// The desktop as a process of an X session; a test may end and start it again.
class DesktopTest : public testing::Test {
protected:
    explicit DesktopTest(const std::string& behaviour = "linked",
        test::WindowManager windowManager = test::WindowManager::openbox)
        : session(windowManager), extension(behaviour)
    {
        std::ofstream{configuration} << "{}";
    }
    ~DesktopTest() override { end(); }

    /// Started, with so many windows, all of which the window manager has placed.
    bool start(std::size_t count)
    {
        return startUnmanaged(count) && test::waitFor([&] { return areManaged(); });
    }

    /// Started, with so many windows.
    bool startUnmanaged(std::size_t count)
    {
        host.setProcessEnvironment(session.environment());
        host.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        host.start(SKYVANE_DESKTOP_PROGRAM,
            QStringList{path(extension.program().path), path(hostFile), path(configuration)} + more);
        return hasWindows(count);
    }

    void end()
    {
        host.terminate();
        host.waitForFinished();
    }

    bool hasWindows(std::size_t count)
    {
        return test::waitFor([&] {
            windows = session.windowsOf(host.processId());
            return windows.size() == count;
        });
    }

    bool areManaged() const
    {
        const auto managed = session.stacking();
        return std::all_of(windows.begin(), windows.end(), [&](const std::string& window) {
            return std::find(managed.begin(), managed.end(), std::stoul(window)) != managed.end();
        });
    }

    bool isInFile(std::size_t count) const
    {
        return test::waitFor([&] {
            const auto widgets = HostFile{hostFile}.read();
            return widgets && widgets->widgets.size() == count;
        });
    }

    void pointer(const QStringList& words) const { session.run("xdotool", words); }

    /// The right button there, then this key until the menu has heard it: one that just opened may not have
    /// the keyboard yet.
    void chooseFromMenu(QPoint place, const QString& key) const
    {
        pointer({"mousemove", QString::number(place.x()), QString::number(place.y()), "click", "3"});
        std::string menu;
        EXPECT_TRUE(test::waitFor([&] {
            for (const std::string& window : session.windowsOf(host.processId())) {
                if (std::find(windows.begin(), windows.end(), window) == windows.end())
                    menu = window;
            }
            return !menu.empty();
        }));
        EXPECT_TRUE(test::waitFor([&] {
            pointer({"key", key});
            const auto now = session.windowsOf(host.processId());
            return std::find(now.begin(), now.end(), menu) == now.end();
        }));
    }

    /// The gallery's window once it is shown.
    std::string gallery() const
    {
        std::string window;
        EXPECT_TRUE(test::waitFor([&] {
            window = session.run("xdotool", {"search", "--onlyvisible", "--name", "^Add Widgets$"});
            return !window.empty();
        }));
        return window.substr(0, window.find('\n'));
    }

    bool isAt(const std::string& window, const QRect& frame) const
    {
        return test::waitFor([&] { return session.frameOf(window) == frame; });
    }

    /// The only small widget.
    std::string smallWindow() const
    {
        for (const std::string& window : windows) {
            if (session.frameOf(window).size() == QSize{170, 170})
                return window;
        }
        return {};
    }

    /// What a command of the host prints in this session.
    std::string command(const QStringList& words) const { return session.run(SKYVANE_HOST, words); }

    static QString path(const std::filesystem::path& file) { return QString::fromStdString(file.string()); }

    test::XSession session;
    test::ScratchFolder folder;
    test::FakeExtension extension;
    std::filesystem::path hostFile = folder.path() / "skyvane/host.json";
    std::filesystem::path configuration = folder.path() / "widget-config.json";
    QStringList more; ///< Words that the program is started with.
    QProcess host;
    std::vector<std::string> windows;
};

} // namespace skyvane
