#include "host/desktop/companion.h"

#include "desk/activation.h"
#include "desk/bus/application_interface.h"
#include "desk/bus/names.h"
#include "desk/text.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QLoggingCategory>
#include <QProcess>

#include <utility>

namespace skyvane {

namespace {

Q_LOGGING_CATEGORY(journal, "skyvane.host.companion")

/// With nothing of the host's but its environment.
void prepare(QProcess& process, const QString& program, const QStringList& words,
    const QProcessEnvironment& environment)
{
    process.setProgram(program);
    process.setArguments(words);
    process.setProcessEnvironment(environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
}

void startDetached(
    const std::filesystem::path& program, const QStringList& words, const QProcessEnvironment& environment)
{
    QProcess process;
    prepare(process, toQString(program.string()), words, environment);
    if (!process.startDetached())
        qCWarning(journal, "the companion cannot be started: %s", program.c_str());
}

/// Once it runs outside, or cannot: the one that is started then hands over what it was asked, and ends.
void onceOutside(const Companion& companion, std::function<void()> start)
{
    if (!companion.outside)
        return start();
    auto call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("StartServiceByName"));
    call << BusName::companion() << 0U;
    auto* watcher
        = new QDBusPendingCallWatcher{companion.outside().asyncCall(call), QCoreApplication::instance()};
    QObject::connect(
        watcher, &QDBusPendingCallWatcher::finished, watcher, [watcher, start = std::move(start)] {
            watcher->deleteLater();
            start();
        });
}

/// The bus starts the companion that is installed, where none runs.
QDBusMessage openCall(const QString& link, const QString& token)
{
    auto message = QDBusMessage::createMethodCall(BusName::companion(), BusName::path(BusName::companion()),
        QString::fromLatin1(ApplicationInterface::staticInterfaceName()), QStringLiteral("Open"));
    message << QStringList{link} << Activation::platformData(token);
    return message;
}

void askOpener(const Companion& companion, const QString& link, const QString& token, const QString& opener)
{
    auto* process = new QProcess{QCoreApplication::instance()};
    prepare(*process, opener, {link}, Activation::withToken(companion.environment, token));
    const auto settle = [companion, process, link, token](bool isOpened) {
        if (!isOpened)
            companion.start({link}, token);
        process->deleteLater();
    };
    QObject::connect(process, &QProcess::finished, process, [settle](int code, QProcess::ExitStatus status) {
        settle(code == 0 && status == QProcess::NormalExit);
    });
    QObject::connect(process, &QProcess::errorOccurred, process, [settle](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            settle(/*isOpened=*/false);
    });
    process->start();
}

} // namespace

void Companion::start(const QStringList& words, const QString& token) const
{
    onceOutside(
        *this, [=, *this] { startDetached(program, words, Activation::withToken(environment, token)); });
}

void Companion::startInPlaceOfHost() const
{
    onceOutside(*this, [*this] { startDetached(program, {}, environment); });
}

void Companion::openLink(
    const QDBusConnection& bus, const URL& link, const QString& token, const QString& opener) const
{
    const QString text = toQString(link.text());
    if (!bus.isConnected())
        return askOpener(*this, text, token, opener);
    auto* answer
        = new QDBusPendingCallWatcher{bus.asyncCall(openCall(text, token)), QCoreApplication::instance()};
    QObject::connect(
        answer, &QDBusPendingCallWatcher::finished, answer, [companion = *this, answer, text, token, opener] {
            if (answer->isError())
                askOpener(companion, text, token, opener);
            answer->deleteLater();
        });
}

} // namespace skyvane
