#include "host/extension/process.h"

#include "host/extension/error.h"
#include "host/extension/failures.h"
#include "platform/text/printable.h"

#include <QLoggingCategory>

#include <utility>

namespace skyvane {

namespace {

Q_LOGGING_CATEGORY(journal, "skyvane.host.extension")

void wait(QTimer& timer, const QDeadlineTimer& deadline)
{
    timer.start(std::chrono::milliseconds{std::max<qint64>(deadline.remainingTime(), 0) + 1});
}

} // namespace

ExtensionProcess::ExtensionProcess(ExtensionProgram program, ExtensionPace pace)
    : m_program(std::move(program)), m_pace(pace)
{
    m_program.prepare(m_process);
    for (QTimer* timer : {&m_wake, &m_patience, &m_idle}) {
        timer->setSingleShot(true);
        timer->setTimerType(Qt::PreciseTimer);
    }
    m_wake.callOnTimeout([this] { pump(); });
    m_patience.callOnTimeout([this] { failLate(); });
    m_idle.callOnTimeout([this] { endIdle(); });
    QObject::connect(&m_process, &QProcess::started, &m_process, [this] { pump(); });
    QObject::connect(&m_process, &QProcess::readyReadStandardOutput, &m_process, [this] { read(); });
    QObject::connect(&m_process, &QProcess::errorOccurred, &m_process,
        [this](QProcess::ProcessError error) { handleStartError(error); });
    QObject::connect(&m_process, &QProcess::finished, &m_process,
        [this](int, QProcess::ExitStatus status) { handleEnd(status); });
}

ExtensionProcess::~ExtensionProcess()
{
    m_process.disconnect();
    m_process.closeWriteChannel();
    if (m_process.state() == QProcess::NotRunning
        || m_process.waitForFinished(static_cast<int>(m_pace.grace.count())))
        return;
    m_process.kill();
    m_process.waitForFinished();
}

void ExtensionProcess::ask(Question question)
{
    (question.asksFeed ? m_waitingForFeed : m_waiting).push_back(std::move(question));
    pump();
}

void ExtensionProcess::pump()
{
    if (m_waiting.empty() && m_waitingForFeed.empty())
        return;
    if (m_process.state() != QProcess::Running)
        return startWhenAllowed();
    if (m_isEnding)
        return;
    while (!m_waiting.empty())
        send(m_waiting);
    if (!m_waitingForFeed.empty() && m_nextToFeed.hasExpired() && send(m_waitingForFeed))
        m_nextToFeed = QDeadlineTimer{m_pace.betweenTimelines, Qt::PreciseTimer};
    if (!m_waitingForFeed.empty())
        wait(m_wake, m_nextToFeed);
}

void ExtensionProcess::startWhenAllowed()
{
    if (m_process.state() == QProcess::Starting)
        return;
    if (!m_nextStart.hasExpired())
        return wait(m_wake, m_nextStart);
    m_lines = {};
    m_process.start();
}

/// The first of the queue; false when there was nothing to ask after all.
bool ExtensionProcess::send(std::deque<Question>& queue)
{
    Question next = std::move(queue.front());
    queue.pop_front();
    const std::optional<QByteArray> line = next.makeLine();
    if (line) {
        m_process.write(*line);
        next.deadline = QDeadlineTimer{m_program.timeout, Qt::PreciseTimer};
        m_asked.emplace(next.id, std::move(next));
    } else {
        next.fail();
    }
    settle();
    return line.has_value();
}

void ExtensionProcess::read()
{
    const QByteArray bytes = m_process.readAllStandardOutput();
    if (m_isEnding)
        return;
    m_lines.add(bytes);
    try {
        while (!m_isEnding) {
            const auto line = m_lines.next();
            if (!line)
                return;
            handle(*line);
        }
    } catch (const JSON::DecodingError& error) {
        fail(ExtensionFailures::nonsense(error));
    } catch (const ExtensionError& error) {
        fail(error.what());
    }
}

void ExtensionProcess::handle(const QByteArray& line)
{
    const JSON::Document answer{{line.data(), static_cast<std::size_t>(line.size())}};
    const std::int64_t id = Protocol::answeredID(answer.root());
    const auto place = m_asked.find(id);
    if (place == m_asked.end())
        throw JSON::DecodingError{"is that of no request"}.inMember("id");
    std::function<void()> deliver = place->second.fail;
    try {
        deliver = place->second.decode(Protocol::resultOf(answer.root(), id));
        if (place->second.asksFeed) {
            m_backOff = {};
            m_stops = 0;
            m_toldFailure.clear();
        }
    } catch (const Protocol::Refused& error) {
        tell(ExtensionFailures::refused(error));
    }
    m_asked.erase(place);
    settle();
    deliver();
}

void ExtensionProcess::handleStartError(QProcess::ProcessError error)
{
    if (error != QProcess::FailedToStart)
        return;
    for (std::deque<Question>* queue : {&m_waiting, &m_waitingForFeed}) {
        for (Question& question : std::exchange(*queue, {}))
            m_asked.emplace(question.id, std::move(question));
    }
    fail(ExtensionFailures::notStarted(m_program.path));
}

void ExtensionProcess::handleEnd(QProcess::ExitStatus status)
{
    m_idle.stop();
    const bool isExpected = std::exchange(m_isEnding, false);
    if (isExpected || (m_asked.empty() && status != QProcess::CrashExit))
        return pump();
    ++m_stops;
    fail(stopsAtEachRequest() ? ExtensionFailures::stopsAtEachRequest() : ExtensionFailures::ended(status));
}

void ExtensionProcess::endIdle()
{
    if (m_isEnding)
        return m_process.kill();
    m_isEnding = true;
    m_process.closeWriteChannel();
    m_idle.start(m_pace.grace);
}

void ExtensionProcess::failLate()
{
    if (!earliestDeadline().hasExpired())
        return settle();
    fail(ExtensionFailures::noAnswer(m_program.timeout));
}

void ExtensionProcess::fail(const std::string& reason)
{
    tell(reason);
    m_backOff = m_backOff.count() == 0 ? m_pace.firstBackOff : std::min(m_backOff * 2, m_pace.longestBackOff);
    m_nextStart = QDeadlineTimer{m_backOff};
    const auto failed = std::exchange(m_asked, {});
    settle();
    m_isEnding = m_process.state() != QProcess::NotRunning;
    if (m_isEnding)
        m_process.kill();
    for (const auto& [id, question] : failed)
        question.fail();
    pump();
}

void ExtensionProcess::tell(const std::string& reason)
{
    if (reason == m_toldFailure)
        return;
    m_toldFailure = reason;
    qCWarning(journal, "%s", Unicode::oneLine(reason, Unicode::longestLine).c_str());
}

void ExtensionProcess::settle()
{
    m_patience.stop();
    m_idle.stop();
    if (!m_asked.empty())
        wait(m_patience, earliestDeadline());
    else if (m_process.state() == QProcess::Running && m_waitingForFeed.empty())
        m_idle.start(m_pace.idle);
}

QDeadlineTimer ExtensionProcess::earliestDeadline() const
{
    QDeadlineTimer earliest{QDeadlineTimer::Forever};
    for (const auto& [id, question] : m_asked)
        earliest = std::min(earliest, question.deadline);
    return earliest;
}

} // namespace skyvane
