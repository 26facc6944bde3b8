#pragma once

#include "host/extension/answer_lines.h"
#include "host/extension/program.h"
#include "platform/json/value.h"
#include "protocol/answer.h"
#include "protocol/request.h"

#include <QDeadlineTimer>
#include <QProcess>
#include <QTimer>

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <utility>

namespace skyvane {

/// How the host spaces what it asks and how often it tries.
struct ExtensionPace {
    /// Between two questions that the feed is asked for.
    std::chrono::milliseconds betweenTimelines{Protocol::Limits::betweenTimelines};
    std::chrono::milliseconds idle{std::chrono::seconds{10}}; ///< Without a question until it is ended.
    std::chrono::milliseconds grace{Protocol::Limits::timeToEnd}; ///< Time-out for it to end by itself.
    /// Exponential back-off: the wait before a restart, doubled each time.
    std::chrono::milliseconds firstBackOff{std::chrono::seconds{5}};
    std::chrono::milliseconds longestBackOff{std::chrono::minutes{5}};
};

/// The widget extension as a process of the event loop: started when something is asked, ended when idle,
/// started again after a failure. Answers come in any order; a failure is an absent answer, with one line in
/// the journal until the extension answers a question to the feed again. It is a rate limiter, too, for
/// those.
class ExtensionProcess {
public:
    template <class Result>
    using Answer = std::function<void(std::optional<Result>)>;

    explicit ExtensionProcess(ExtensionProgram program, ExtensionPace pace = {});
    ~ExtensionProcess();
    ExtensionProcess(const ExtensionProcess&) = delete;
    ExtensionProcess& operator=(const ExtensionProcess&) = delete;

    /// Starts the process ahead of the first question, which then finds it ready.
    void start() { startWhenAllowed(); }

    /// Whether it has ended without an answer twice or more in a row.
    bool stopsAtEachRequest() const { return m_stops >= 2; }

    template <class Call>
    void ask(const Call& call, Answer<typename Call::Result> answer)
    {
        ask<Call>([call] { return std::optional{call}; }, std::move(answer), call.asksFeed());
    }

    /// A call that asks the feed, made when its turn comes, of what is wanted by then; the answer to none is
    /// absent.
    template <class Call>
    void askInTurn(std::function<std::optional<Call>()> make, Answer<typename Call::Result> answer)
    {
        ask<Call>(std::move(make), std::move(answer), /*asksFeed=*/true);
    }

private:
    struct Question {
        std::int64_t id;
        std::function<std::optional<QByteArray>()>
            makeLine; ///< Absent when there is nothing to ask after all.
        /// What to do with a result; throws `JSON::DecodingError`.
        std::function<std::function<void()>(JSON::Value)> decode;
        std::function<void()> fail;
        bool asksFeed;
        QDeadlineTimer deadline{};
    };

    template <class Call>
    void ask(std::function<std::optional<Call>()> make, Answer<typename Call::Result> answer, bool asksFeed)
    {
        const std::int64_t id = ++m_lastId;
        ask({
            .id = id,
            .makeLine = [id, make = std::move(make)]() -> std::optional<QByteArray> {
                const std::optional<Call> call = make();
                if (!call)
                    return std::nullopt;
                return QByteArray::fromStdString(Protocol::requestLine(id, *call));
            },
            .decode =
                [answer](JSON::Value value) {
                    auto result = Protocol::read<typename Call::Result>(value);
                    return [answer, result = std::move(result)] { answer(result); };
                },
            .fail = [answer] { answer(std::nullopt); },
            .asksFeed = asksFeed,
        });
    }

    void ask(Question question);
    void pump();
    void startWhenAllowed();
    bool send(std::deque<Question>& queue);
    void read();
    void handle(const QByteArray& line);
    void handleStartError(QProcess::ProcessError error);
    void handleEnd(QProcess::ExitStatus status);
    void endIdle();
    void failLate();
    void fail(const std::string& reason);
    void tell(const std::string& reason);
    void settle();
    QDeadlineTimer earliestDeadline() const;

    ExtensionProgram m_program;
    ExtensionPace m_pace;
    QProcess m_process;
    AnswerLines m_lines;
    std::deque<Question> m_waiting;
    std::deque<Question> m_waitingForFeed;
    std::map<std::int64_t, Question> m_asked;
    std::int64_t m_lastId = 0;
    bool m_isEnding = false; ///< Takes no more questions and is still there.
    std::chrono::milliseconds m_backOff{0};
    int m_stops = 0; ///< In a row, since a question to the feed was answered.
    std::string m_toldFailure; ///< What the journal knows already.
    QDeadlineTimer m_nextStart{0};
    QDeadlineTimer m_nextToFeed{0};
    QTimer m_wake; ///< Wakes for questions that wait for their turn.
    QTimer m_patience; ///< Time-out of the oldest question.
    QTimer m_idle;
};

} // namespace skyvane
