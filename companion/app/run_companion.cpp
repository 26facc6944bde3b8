#include "companion/app/run_companion.h"

#include "alerts/sky_alerts.h"
#include "companion/alerts/alert_store.h"
#include "companion/app/companion_service.h"
#include "companion/app/feed_journal.h"
#include "companion/app/hand_over.h"
#include "companion/feed/pacer.h"
#include "companion/host_switch/host_control.h"
#include "companion/window/main_window.h"
#include "core/config/shared_state.h"
#include "desk/activation.h"
#include "desk/alerts/alert_choices_file.h"
#include "desk/alerts/notifications.h"
#include "desk/bus/single_instance.h"
#include "desk/look/appearance.h"
#include "desk/text.h"
#include "platform/files/configuration_file.h"
#include "platform/files/programs.h"
#include "platform/net/url_session.h"

#include <QApplication>
#include <QDesktopServices>
#include <QLoggingCategory>
#include <QStandardPaths>
#include <QTimer>

#include <chrono>
#include <optional>

namespace skyvane {

namespace {

Q_LOGGING_CATEGORY(journal, "skyvane.companion")

constexpr std::chrono::seconds longestWaitForRequest{10};

/// What was asked for, as the window does it.
class OpenCompanion {
public:
    explicit OpenCompanion(const CompanionSetup& setup)
        : m_pacer(setup.transport)
        , m_feed(m_errands, m_pacer.transport())
        , m_lookups(m_errands, setup.decode, m_pacer.transport())
        , m_host(setup.sessionBus, setup.hostProgram)
        , m_alerts(setup.alerts)
        , m_notifications(setup.sessionBus, BusName::companion())
        , m_appearance(setup.sessionBus)
        , m_window({
              .feed = m_feed,
              .lookups = m_lookups,
              .host = m_host,
              .alerts = m_alerts,
              .fonts = m_fonts,
              .systemBus = setup.systemBus,
              .open = setup.open,
              .showSampleAlert = [this] { showSampleAlert(); },
              .autostart = setup.autostart,
              .memory = setup.memory,
          })
    {
        QObject::connect(&m_notifications, &Notifications::activated, &m_window,
            [this](const QString&, const QString& token) { activate(token); });
    }

    void activate(const QString& token)
    {
        if (!m_window.isVisible() && !SharedState::read())
            m_window.showSettings();
        Activation::bringToFront(m_window, token);
    }

    void follow(const std::string& link, const QString& token)
    {
        m_window.follow(IncomingLink::read(link));
        Activation::bringToFront(m_window, token);
    }

    void showSettings(const QString& token)
    {
        m_window.showSettings();
        Activation::bringToFront(m_window, token);
    }

    void showAlerts(const QString& token)
    {
        m_window.showAlerts();
        Activation::bringToFront(m_window, token);
    }

    void start(const CommandLine& line, const QString& token)
    {
        if (line.showsSettings)
            showSettings(token);
        else if (line.showsAlerts)
            showAlerts(token);
        else if (line.link)
            follow(*line.link, token);
        else
            activate(token);
    }

    bool isShown() const { return m_window.isVisible(); }

private:
    void showSampleAlert()
    {
        const SkyAlert sample = sampleSkyAlert();
        m_notifications.show({
            .key = toQString(sample.id),
            .title = toQString(sample.title),
            .body = toQString(sample.body),
        });
    }

    Pacer m_pacer; ///< Outlives the threads that wait in it.
    Errands m_errands;
    SkyFeed m_feed;
    FeedJournal m_journal{m_feed};
    Lookups m_lookups;
    HostControl m_host;
    AlertStore m_alerts;
    Notifications m_notifications;
    Appearance m_appearance;
    FontMeasurer m_fonts;
    MainWindow m_window;
};

/// Called in the event loop only, by which time there is one.
CompanionActions actionsOf(std::optional<OpenCompanion>& companion)
{
    return {
        .activate = [&](const QString& token) { companion->activate(token); },
        .open = [&](const QStringList& links,
                    const QString& token) { companion->follow(links.value(0).toStdString(), token); },
        .showSettings = [&](const QString& token) { companion->showSettings(token); },
        .showAlerts = [&](const QString& token) { companion->showAlerts(token); },
    };
}

int handOverTo(const QDBusConnection& bus, const CommandLine& line, const QString& token)
{
    if (handOver(bus, line, token))
        return 0;
    qCWarning(journal, "the running companion does not answer");
    return 1;
}

void quitUnless(bool isShown)
{
    if (!isShown)
        QApplication::quit();
}

} // namespace

CompanionSetup CompanionSetup::standard()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return {
        .sessionBus = QDBusConnection::sessionBus(),
        .systemBus = QDBusConnection::systemBus(),
        .transport = UrlSession{},
        .decode = decodePhotoBy(Programs::photo(Programs::ownFolder())),
        .open = [](const QUrl& page) { QDesktopServices::openUrl(page); },
        .hostProgram = toQString(Programs::host(Programs::ownFolder()).string()),
        .autostart = AutostartFolders::standard(),
        .alerts = AlertChoicesFile::standardPath(),
        .memory = folder.toStdString() + "/skyvane/companion.ini",
    };
}

int runCompanion(const CompanionSetup& setup, const CommandLine& line, const QString& token)
{
    const QDBusConnection& bus = setup.sessionBus;
    // There to be found before the name is; what it is asked waits for the event loop.
    std::optional<OpenCompanion> companion;
    std::optional<CompanionService> service;
    service.emplace(bus, actionsOf(companion));
    std::optional<SingleInstance> instance;
    instance.emplace(bus, BusName::companion());
    if (!instance->isFirst()) {
        service.reset();
        return handOverTo(bus, line, token);
    }
    for (const auto& file : {Files::configurationFile(), Autostart::ownEntry(setup.autostart)})
        Files::removeAbandonedDrafts(file);
    companion.emplace(setup);
    if (line.isService)
        QTimer::singleShot(longestWaitForRequest, [&] { quitUnless(companion->isShown()); });
    else
        companion->start(line, token);
    const int status = QApplication::exec();
    instance.reset();
    service.reset();
    return status;
}

} // namespace skyvane
