#include "companion/window/main_window.h"

#include "companion/aircraft/aircraft_page.h"
#include "companion/alerts/alerts_page.h"
#include "companion/look/line_icon.h"
#include "companion/settings/settings_page.h"
#include "companion/sky/sky_page.h"
#include "companion/window/about_dialog.h"
#include "companion/window/header_bar.h"
#include "companion/window/settings_pane.h"
#include "companion/window/shortcuts_dialog.h"
#include "companion/window/window_place.h"
#include "desk/text.h"

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QScreen>
#include <QSettings>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <utility>

namespace skyvane {

namespace {

constexpr QSize firstSize{1120, 720};
constexpr QSize leastSize{640, 480};

QString geometryKey()
{
    return QStringLiteral("window/geometry");
}

} // namespace

MainWindow::MainWindow(const WindowParts& parts)
    : m_parts(parts)
    , m_preferences(m_parts.memory)
    , m_sky(new SkyPage{m_parts.feed, m_parts.alerts, m_preferences, m_parts.fonts})
    , m_aircraft(new AircraftPage{
          {m_parts.feed, m_parts.lookups, m_parts.alerts, m_preferences, m_sky->trails(), m_parts.open},
          m_parts.fonts})
    , m_stack(new QStackedWidget)
{
    makeActions();
    m_header = new HeaderBar{{.back = m_back,
        .refresh = m_refresh,
        .menu = {m_alertsAction, m_settingsAction, m_shortcuts, m_about, m_quit}}};
    m_stack->addWidget(m_sky);
    m_stack->addWidget(m_aircraft);
    auto* content = new QWidget;
    auto* column = new QVBoxLayout{content};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_header);
    column->addWidget(m_stack, /*stretch=*/1);
    setCentralWidget(content);

    connect(m_sky, &SkyPage::headingChanged, this, &MainWindow::showHeading);
    connect(m_aircraft, &AircraftPage::headingChanged, this, &MainWindow::showHeading);
    connect(m_sky, &SkyPage::aircraftActivated, this,
        [this](const QString& hex) { showAircraft(hex.toStdString()); });
    connect(m_sky, &SkyPage::settingsWanted, this, &MainWindow::showSettings);
    connect(m_aircraft, &AircraftPage::settingsWanted, this, &MainWindow::showSettings);

    takePlace();
    showSky();
}

void MainWindow::takePlace()
{
    setMinimumSize(WindowPlace::fitted(leastSize, screen()->availableGeometry()));
    const QSettings memory{toQString(m_parts.memory.string()), QSettings::IniFormat};
    if (!restoreGeometry(memory.value(geometryKey()).toByteArray())) {
        resize(WindowPlace::fitted(firstSize, screen()->availableGeometry()));
        return;
    }
    const QScreen* there = QGuiApplication::screenAt(geometry().center());
    if (!isMaximized() && !isFullScreen())
        setGeometry(
            WindowPlace::fitted(geometry(), (there != nullptr ? there : screen())->availableGeometry()));
}

QAction* MainWindow::addShortcut(
    const QString& text, const QList<QKeySequence>& keys, std::function<void()> act)
{
    auto* action = new QAction{text, this};
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, std::move(act));
    addAction(action);
    return action;
}

void MainWindow::makeActions()
{
    m_back = addShortcut(localizedText("Back"), {Qt::ALT | Qt::Key_Left}, [this] { goBack(); });
    m_back->setIcon(lineIcon(LineIcon::back));
    m_refresh = addShortcut(
        localizedText("Refresh"), {Qt::Key_F5, Qt::CTRL | Qt::Key_R}, [this] { m_parts.feed.refresh(); });
    m_refresh->setIcon(lineIcon(LineIcon::refresh));
    m_settingsAction
        = addShortcut(localizedText("Settings…"), {Qt::CTRL | Qt::Key_Comma}, [this] { showSettings(); });
    m_alertsAction
        = addShortcut(localizedText("Tell Me When…"), {Qt::CTRL | Qt::Key_T}, [this] { showAlerts(); });
    m_shortcuts = addShortcut(localizedText("Keyboard Shortcuts"), {Qt::Key_F1, Qt::CTRL | Qt::Key_Question},
        [this] { showShortcuts(); });
    m_about = addShortcut(localizedText("About Skyvane"), {}, [this] { showAbout(); });
    m_quit = addShortcut(localizedText("Quit"), {Qt::CTRL | Qt::Key_Q}, [] { QApplication::quit(); });
    addShortcut(localizedText("Filter"), {Qt::CTRL | Qt::Key_F}, [this] {
        showSky();
        m_sky->focusFilter();
    });
    addShortcut(localizedText("Leave a field, or go back"), {Qt::Key_Escape}, [this] { escape(); });
}

void MainWindow::showSky()
{
    turnTo(m_sky);
    m_sky->focusList();
}

void MainWindow::showAircraft(const std::string& hex)
{
    m_sky->showLinkProblem({});
    m_hex = hex;
    turnTo(m_aircraft);
    m_aircraft->showAircraft(hex);
}

void MainWindow::showSettings()
{
    if (m_settings == nullptr) {
        m_settings = makeSettings();
        m_stack->addWidget(m_settings);
    }
    turnAside(m_settings);
}

void MainWindow::showAlerts()
{
    if (m_alerts == nullptr) {
        m_alerts = new AlertsPage{m_parts.alerts, m_parts.showSampleAlert};
        m_stack->addWidget(m_alerts);
    }
    turnAside(m_alerts);
    m_alerts->setFocus();
}

bool MainWindow::isAside() const
{
    const QWidget* shown = m_stack->currentWidget();
    return shown == m_settings || shown == m_alerts;
}

/// To a page from which one comes back to where one was.
void MainWindow::turnAside(QWidget* page)
{
    if (!isAside())
        m_before = m_stack->currentWidget();
    turnTo(page);
}

QWidget* MainWindow::makeSettings()
{
    auto* page = new SettingsPage{m_parts.fonts, m_parts.systemBus, m_preferences};
    const auto showSky = [this, page] { page->showSky(m_parts.feed.report().entry); };
    connect(page, &SettingsPage::changed, &m_parts.feed, &SkyFeed::reload);
    connect(&m_parts.feed, &SkyFeed::changed, page, showSky);
    showSky();
    return new SettingsPane{m_parts.host, m_parts.autostart, page};
}

void MainWindow::follow(const IncomingLink::Target& target)
{
    if (const auto* aircraft = std::get_if<IncomingLink::OneAircraft>(&target)) {
        showAircraft(aircraft->hex);
        return;
    }
    const auto* problem = std::get_if<IncomingLink::Problem>(&target);
    if (problem != nullptr)
        m_parts.feed.holdOff();
    m_sky->showLinkProblem(problem != nullptr ? toQString(IncomingLink::description(*problem)) : QString{});
    showSky();
}

void MainWindow::turnTo(QWidget* page)
{
    if (page != m_aircraft)
        m_aircraft->leave();
    m_stack->setCurrentWidget(page);
    m_back->setEnabled(page != m_sky);
    m_refresh->setEnabled(!isAside());
    showHeading();
    watchFeed();
}

void MainWindow::goBack()
{
    if (isAside() && m_before == m_aircraft)
        showAircraft(std::string{m_hex});
    else
        showSky();
}

void MainWindow::escape()
{
    if (!leaveField() && m_back->isEnabled())
        goBack();
}

/// Whether the keyboard was in a field, which it has left.
bool MainWindow::leaveField()
{
    if (m_sky->leaveFilter())
        return true;
    if (qobject_cast<QLineEdit*>(focusWidget()) == nullptr)
        return false;
    m_stack->currentWidget()->setFocus();
    return true;
}

void MainWindow::showHeading()
{
    Heading heading{.title = localizedText("Settings")};
    if (m_stack->currentWidget() == m_sky)
        heading = m_sky->heading();
    else if (m_stack->currentWidget() == m_aircraft)
        heading = m_aircraft->heading();
    else if (m_stack->currentWidget() == m_alerts)
        heading = {.title = localizedText("Tell me when…")};
    m_header->showHeading(heading);
    const QString& title = heading.window.isEmpty() ? heading.title : heading.window;
    setWindowTitle(title + QStringLiteral(" – Skyvane"));
}

void MainWindow::watchFeed()
{
    m_parts.feed.setWatched(isVisible() && !isMinimized() && !isAside());
}

void MainWindow::showAbout()
{
    auto* about = new AboutDialog{this};
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->open();
}

void MainWindow::showShortcuts()
{
    auto* list = new ShortcutsDialog{actions(), this};
    list->setAttribute(Qt::WA_DeleteOnClose);
    list->open();
}

void MainWindow::showEvent(QShowEvent* event)
{
    QMainWindow::showEvent(event);
    watchFeed();
}

void MainWindow::hideEvent(QHideEvent* event)
{
    QMainWindow::hideEvent(event);
    watchFeed();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    QSettings memory{toQString(m_parts.memory.string()), QSettings::IniFormat};
    memory.setValue(geometryKey(), saveGeometry());
    QMainWindow::closeEvent(event);
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange)
        watchFeed();
}

} // namespace skyvane
