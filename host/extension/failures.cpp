#include "host/extension/failures.h"

namespace skyvane::ExtensionFailures {

std::string notStarted(const std::filesystem::path& program)
{
    return "the widget extension cannot be started: " + program.string();
}

std::string ended(QProcess::ExitStatus status)
{
    return status == QProcess::CrashExit ? "the widget extension crashed"
                                         : "the widget extension ended without an answer";
}

std::string stopsAtEachRequest()
{
    return "the widget extension stops at each request; widget-config.json may hold a number that makes no "
           "sense";
}

std::string noAnswer(std::chrono::milliseconds timeout)
{
    const double seconds = std::chrono::duration<double>{timeout}.count();
    return "the widget extension did not answer within " + QString::number(seconds).toStdString() + " s";
}

std::string nonsense(const JSON::DecodingError& error)
{
    return std::string{"the widget extension answered nonsense: "} + error.what();
}

std::string refused(const Protocol::Refused& error)
{
    return std::string{"the widget extension refused: "} + error.what();
}

} // namespace skyvane::ExtensionFailures
