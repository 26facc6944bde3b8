#include "widgets/extension/serve.h"

#include "protocol/record_codec.h"
#include "widgets/extension/alerts.h"
#include "widgets/extension/answers.h"
#include "widgets/extension/line_reader.h"
#include "widgets/extension/message.h"
#include "widgets/extension/output.h"
#include "widgets/sky_provider.h"

#include <algorithm>
#include <atomic>
#include <list>
#include <stop_token>
#include <system_error>
#include <thread>
#include <utility>

namespace skyvane::Extension {

namespace {

namespace Limits = Protocol::Limits;
using Protocol::ListCall;
using Protocol::PlaceholderCall;
using Protocol::SnapshotCall;
using Protocol::TimelineCall;
using Protocol::TimelinesCall;

/// A request that the network is asked for, on a thread of its own.
struct Task {
    explicit Task(RequestID request) : id(std::move(request)) { }

    RequestID id;
    std::atomic<bool> isFinished{false}; ///< Nothing is left to do but to hand over the answer.
    std::jthread thread{};
};

/// Answers messages. Only `answerLine` runs on other threads than the reader's.
class Server {
public:
    Server(Output& output, const Transport& transport)
        : m_output(output), m_provider{.transport = transport}, m_offered(SkyvaneWidgetBundle{}.body())
    {
    }
    ~Server()
    {
        for (Task& task : m_tasks)
            task.thread.request_stop();
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    void receive(const LineReader::Line& line)
    {
        if (line.isTooLong)
            refuse({
                .id = noID,
                .code = ErrorCode::parseError,
                .message = "a line is longer than " + Limits::inKiB(Limits::longestRequest),
            });
        else
            std::visit([this](auto&& message) { receive(message); }, readMessage(line.text, m_offered));
    }

private:
    void receive(const Request& request);
    void receive(const Cancellation& cancellation);
    void receive(const IgnoredNotification&) { }
    void receive(const Refusal& refusal) { refuse(refusal); }

    void refuse(const Refusal& refusal)
    {
        m_output.write(errorLine(refusal.id, refusal.code, refusal.message));
    }
    void refuseOneTooMany(const Request& request)
    {
        refuse({.id = request.id, .code = ErrorCode::tooManyRequests, .message = "too many requests"});
    }
    void start(const Request& request);
    std::string answerLine(const Request& request, const std::stop_token& stop) const;

    ListCall::Result result(const ListCall&, const std::stop_token&) const { return widgetList(m_offered); }
    PlaceholderCall::Result result(const PlaceholderCall& call, const std::stop_token&) const
    {
        return {.entry = widgetEntry(m_provider.placeholder(), offered(call.params))};
    }
    SnapshotCall::Result result(const SnapshotCall& call, const std::stop_token& stop) const
    {
        const bool isPreview = call.params.isPreview.value_or(false);
        return {.entry = widgetEntry(m_provider.getSnapshot(isPreview, stop), offered(call.params.target))};
    }
    TimelineCall::Result result(const TimelineCall& call, const std::stop_token& stop) const
    {
        return widgetTimeline(m_provider.getTimeline(stop), offered(call.params));
    }
    TimelinesCall::Result result(const TimelinesCall& call, const std::stop_token& stop) const
    {
        const auto& rules = call.params.alerts;
        const SkyTimeline timeline
            = rules ? m_provider.getTimeline(skyAlertRules(*rules), stop) : m_provider.getTimeline(stop);
        TimelinesCall::Result answer;
        for (const WidgetTarget& target : call.params.widgets)
            answer.timelines.push_back(widgetTimeline(timeline, offered(target)));
        if (rules)
            answer.alerts = alertsThatFit(timeline.alerts);
        return answer;
    }

    /// The one that `readMessage` has found there.
    OfferedWidget offered(const WidgetTarget& target) const { return OfferedWidget::find(target, m_offered); }

    Output& m_output;
    SkyProvider m_provider;
    std::vector<Widget> m_offered;
    std::list<Task> m_tasks;
};

void Server::receive(const Request& request)
{
    if (std::visit([](const auto& call) { return call.asksFeed(); }, request.call))
        start(request);
    else
        m_output.write(answerLine(request, {}));
}

void Server::receive(const Cancellation& cancellation)
{
    for (Task& task : m_tasks) {
        if (task.id == cancellation.id)
            task.thread.request_stop();
    }
}

void Server::start(const Request& request)
{
    std::erase_if(m_tasks, [](const Task& task) { return task.isFinished.load(); });
    if (m_tasks.size() >= Limits::mostRequests)
        return refuseOneTooMany(request);
    Task& task = m_tasks.emplace_back(request.id);
    const auto work = [this, request, &task](const std::stop_token& stop) {
        std::string answer = answerLine(request, stop);
        task.isFinished = true;
        m_output.write(std::move(answer));
    };
    try {
        task.thread = std::jthread{work};
    } catch (const std::system_error& error) {
        m_tasks.pop_back();
        refuse({.id = request.id, .code = ErrorCode::internalError, .message = error.what()});
    }
}

std::string Server::answerLine(const Request& request, const std::stop_token& stop) const
{
    Result found;
    try {
        found
            = std::visit([&](const auto& call) { return Protocol::write(result(call, stop)); }, request.call);
    } catch (const CancellationError&) {
        return errorLine(request.id, ErrorCode::cancelled, "cancelled");
    } catch (const std::exception& error) {
        return errorLine(request.id, ErrorCode::internalError, error.what());
    }
    if (stop.stop_requested())
        return errorLine(request.id, ErrorCode::cancelled, "cancelled");
    return resultLine(request.id, found, longestResult(request.call));
}

} // namespace

void serve(int input, int output, const Services& services)
{
    Output answers{output, input};
    LineReader lines{input, answers.lost()};
    Server server{answers, services.transport};
    while (const auto line = lines.next())
        server.receive(*line);
}

} // namespace skyvane::Extension
