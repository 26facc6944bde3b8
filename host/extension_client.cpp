#include "host/extension_client.h"

#include "host/clean_environment.h"
#include "host/extension_answers.h"

#include <QDeadlineTimer>

#include <nlohmann/json.hpp>
#include <string>

namespace skyvane {

namespace {

constexpr qsizetype longestAnswer = 256 * 1024;

nlohmann::ordered_json target(std::string_view kind, ContainerFamily family)
{
    return {{"kind", kind}, {"family", WidgetContainer::name(family)}};
}

std::string inSeconds(std::chrono::milliseconds duration)
{
    std::string text = QString::number(std::chrono::duration<double>{duration}.count()).toStdString();
    return text.append(" s");
}

} // namespace

ExtensionClient::ExtensionClient(const ExtensionProgram& program) : m_timeout(program.timeout)
{
    m_process.setProgram(QString::fromStdString(program.path.string()));
    m_process.setProcessEnvironment(cleanEnvironment(QProcessEnvironment::systemEnvironment()));
    m_process.setStandardErrorFile(QProcess::nullDevice());
    m_process.start();
    if (!m_process.waitForStarted())
        throw ExtensionError{"the widget extension cannot be started: " + program.path.string()};
}

ExtensionClient::~ExtensionClient()
{
    constexpr int grace = 1000; // Milliseconds.
    m_process.closeWriteChannel();
    if (m_process.state() == QProcess::NotRunning || m_process.waitForFinished(grace))
        return;
    m_process.kill();
    m_process.waitForFinished();
}

std::vector<WidgetInfo> ExtensionClient::list()
{
    return ask("widgets.list", nlohmann::ordered_json::object(), ExtensionAnswers::widgets);
}

WidgetEntry ExtensionClient::snapshot(std::string_view kind, ContainerFamily family, bool isPreview)
{
    nlohmann::ordered_json params = target(kind, family);
    params["isPreview"] = isPreview;
    return ask("widgets.snapshot", params, ExtensionAnswers::entry);
}

WidgetTimeline ExtensionClient::timeline(std::string_view kind, ContainerFamily family)
{
    return ask("widgets.timeline", target(kind, family), ExtensionAnswers::timeline);
}

template <class Result>
Result ExtensionClient::ask(
    std::string_view method, const nlohmann::ordered_json& params, Result (*decode)(JSON::Value))
{
    const std::int64_t id = ++m_lastId;
    const nlohmann::ordered_json request{
        {"jsonrpc", "2.0"}, {"id", id}, {"method", method}, {"params", params}};
    m_process.write(QByteArray::fromStdString(request.dump()) + '\n');

    const QByteArray line = nextLine();
    try {
        const JSON::Document answer{{line.data(), static_cast<std::size_t>(line.size())}};
        return decode(ExtensionAnswers::result(answer.root(), id));
    } catch (const JSON::DecodingError& error) {
        throw ExtensionError{std::string{"the widget extension answered nonsense: "} + error.what()};
    }
}

QByteArray ExtensionClient::nextLine()
{
    const QDeadlineTimer deadline{m_timeout};
    while (true) {
        const qsizetype end = m_unread.indexOf('\n');
        if (end > longestAnswer || (end < 0 && m_unread.size() > longestAnswer))
            throw ExtensionError{"the widget extension's answer is larger than 256 KiB"};
        if (end >= 0) {
            QByteArray line = m_unread.first(end);
            m_unread.remove(0, end + 1);
            return line;
        }
        if (!m_process.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
            failWithoutAnswer();
        m_unread += m_process.readAllStandardOutput();
    }
}

void ExtensionClient::failWithoutAnswer()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        throw ExtensionError{"the widget extension did not answer within " + inSeconds(m_timeout)};
    }
    if (m_process.exitStatus() == QProcess::CrashExit)
        throw ExtensionError{"the widget extension crashed"};
    throw ExtensionError{"the widget extension ended without an answer"};
}

} // namespace skyvane
