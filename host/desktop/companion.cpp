#include "host/desktop/companion.h"

#include "desk/activation.h"
#include "desk/text.h"

#include <QCoreApplication>
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

} // namespace

void Companion::start(const QStringList& words) const
{
    startDetached(program, words, Activation::withoutToken(environment));
}

void Companion::startInPlaceOfHost() const
{
    startDetached(program, {}, environment);
}

void Companion::openLink(const URL& link, const QString& opener) const
{
    const QString text = toQString(link.text());
    auto* process = new QProcess{QCoreApplication::instance()};
    prepare(*process, opener, {text}, Activation::withoutToken(environment));
    const auto settle = [companion = *this, process, text](bool isOpened) {
        if (!isOpened)
            companion.start({text});
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

} // namespace skyvane
