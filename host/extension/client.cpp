#include "host/extension/client.h"

#include "host/extension/answers.h"
#include "host/extension/failures.h"
#include "host/extension/requests.h"

#include <QDeadlineTimer>

#include <nlohmann/json.hpp>
#include <string>

namespace skyvane {

ExtensionClient::ExtensionClient(const ExtensionProgram& program) : m_timeout(program.timeout)
{
    program.prepare(m_process);
    m_process.start();
    if (!m_process.waitForStarted())
        throw ExtensionError{ExtensionFailures::notStarted(program.path)};
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

WidgetEntry ExtensionClient::snapshot(std::string_view kind, WidgetFamily family, bool isPreview)
{
    nlohmann::ordered_json params = ExtensionRequests::target(kind, family);
    params["isPreview"] = isPreview;
    return ask("widgets.snapshot", params, ExtensionAnswers::entry);
}

WidgetTimeline ExtensionClient::timeline(std::string_view kind, WidgetFamily family)
{
    return ask("widgets.timeline", ExtensionRequests::target(kind, family), ExtensionAnswers::timeline);
}

template <class Result>
Result ExtensionClient::ask(
    std::string_view method, const nlohmann::ordered_json& params, Result (*decode)(JSON::Value))
{
    const std::int64_t id = ++m_lastId;
    m_process.write(ExtensionRequests::line(id, method, params));

    const QByteArray line = nextLine();
    try {
        const JSON::Document answer{{line.data(), static_cast<std::size_t>(line.size())}};
        return decode(ExtensionAnswers::result(answer.root(), id));
    } catch (const JSON::DecodingError& error) {
        throw ExtensionError{ExtensionFailures::nonsense(error)};
    }
}

QByteArray ExtensionClient::nextLine()
{
    const QDeadlineTimer deadline{m_timeout};
    while (true) {
        if (const auto line = m_lines.next())
            return *line;
        if (!m_process.waitForReadyRead(static_cast<int>(deadline.remainingTime())))
            failWithoutAnswer();
        m_lines.add(m_process.readAllStandardOutput());
    }
}

void ExtensionClient::failWithoutAnswer()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        throw ExtensionError{ExtensionFailures::noAnswer(m_timeout)};
    }
    throw ExtensionError{ExtensionFailures::ended(m_process.exitStatus())};
}

} // namespace skyvane
