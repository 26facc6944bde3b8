#pragma once

#include "tests/companion/companion_stage.h"
#include "tests/companion/own_machine.h"
#include "tests/session/x_session.h"
#include "tests/support/service_hosts.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

namespace skyvane::test {

inline constexpr const char* companionName = "org.skyvane.Companion";

/// The built program in an X session, with the sources on this machine.
class CompanionProgram : public testing::Test {
protected:
    CompanionProgram()
    {
        CompanionStage::setHome();
        server.answer(feedPath, {.body = threeAircraft});
    }
    ~CompanionProgram() override
    {
        end(first);
        QDBusConnection::disconnectFromBus("program");
        std::filesystem::remove_all(home());
        std::filesystem::create_directory(home());
    }

    static std::filesystem::path home() { return OwnMachine::instance().home(); }

    /// The companion, with these words on its command line.
    void start(QProcess& companion, const QStringList& words = {}, const QString& token = {}) const
    {
        QProcessEnvironment environment = session.environment();
        if (!token.isEmpty())
            environment.insert("DESKTOP_STARTUP_ID", token);
        companion.setProcessEnvironment(environment);
        companion.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        companion.start(SKYVANE_COMPANION, words);
        companion.waitForStarted();
    }

    static void end(QProcess& companion)
    {
        companion.terminate();
        if (!companion.waitForFinished(10'000))
            companion.kill();
        companion.waitForFinished();
    }

    /// What a start prints that ends by itself.
    QByteArray ended(QProcess& companion, const QStringList& words = {}, const QString& token = {}) const
    {
        start(companion, words, token);
        EXPECT_TRUE(waitFor([&] { return companion.state() == QProcess::NotRunning; }));
        return companion.readAllStandardOutput();
    }

    /// Whether the first one's only window comes to be called so.
    bool isCalled(const std::string& title) const
    {
        return waitFor([&] { return this->title() == title + " – Skyvane\n"; });
    }

    std::string window() const
    {
        const auto windows = session.windowsOf(first.processId());
        return windows.size() == 1 ? windows.front() : "";
    }
    std::string title() const
    {
        return session.run("xdotool", {"getwindowname", QString::fromStdString(window())});
    }
    void press(const QString& key) const
    {
        session.run("xdotool", {"windowfocus", "--sync", QString::fromStdString(window()), "key", key});
    }

    QDBusMessage call(const QString& method, const QVariantList& arguments) const
    {
        auto message = QDBusMessage::createMethodCall(
            companionName, "/org/skyvane/Companion", "org.freedesktop.Application", method);
        message.setArguments(arguments);
        return bus.call(message, QDBus::Block, 20'000);
    }

    bool isAsked(const std::string& prefix)
    {
        return waitFor([&] {
            return std::ranges::any_of(server.requests(),
                [&](const RecordedRequest& request) { return request.target.starts_with(prefix); });
        });
    }

    Pinned<HomeFolder> homeFolder{{.path = home()}};
    CertificateAuthority authority{OwnMachine::instance().authorityFile()};
    HttpsServer server{authority, serviceHosts(), 443};
    XSession session;
    QDBusConnection bus
        = QDBusConnection::connectToBus(session.environment().value("DBUS_SESSION_BUS_ADDRESS"), "program");
    QProcess first;
};

} // namespace skyvane::test
