#include "host/extension/client.h"

#include "host/extension/failures.h"

#include <QDeadlineTimer>

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
    constexpr std::chrono::milliseconds grace = Protocol::Limits::timeToEnd;
    m_process.closeWriteChannel();
    if (m_process.state() == QProcess::NotRunning
        || m_process.waitForFinished(static_cast<int>(grace.count())))
        return;
    m_process.kill();
    m_process.waitForFinished();
}

void ExtensionClient::ask(
    std::int64_t id, const std::string& line, const std::function<void(JSON::Value)>& take)
{
    m_process.write(QByteArray::fromStdString(line));

    const QByteArray answered = nextLine();
    try {
        const JSON::Document answer{{answered.data(), static_cast<std::size_t>(answered.size())}};
        take(Protocol::resultOf(answer.root(), id));
    } catch (const Protocol::Refused& error) {
        throw ExtensionError{ExtensionFailures::refused(error)};
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
