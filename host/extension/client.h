#pragma once

#include "host/extension/answer_lines.h"
#include "host/extension/error.h"
#include "host/extension/program.h"
#include "platform/json/value.h"
#include "protocol/answer.h"
#include "protocol/request.h"

#include <QProcess>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include <sys/types.h>

namespace skyvane {

/// The widget extension as a process, asked one question at a time; it ends with this. A question waits for
/// its answer and throws `ExtensionError` when there is none.
class ExtensionClient {
public:
    explicit ExtensionClient(const ExtensionProgram& program);
    ~ExtensionClient();
    ExtensionClient(const ExtensionClient&) = delete;
    ExtensionClient& operator=(const ExtensionClient&) = delete;

    pid_t processId() const { return static_cast<pid_t>(m_process.processId()); }

    template <class Call>
    typename Call::Result ask(const Call& call)
    {
        std::optional<typename Call::Result> result;
        const std::int64_t id = ++m_lastId;
        ask(id, Protocol::requestLine(id, call),
            [&](JSON::Value value) { result = Protocol::read<typename Call::Result>(value); });
        return *std::move(result);
    }

private:
    void ask(std::int64_t id, const std::string& line, const std::function<void(JSON::Value)>& take);
    QByteArray nextLine();
    [[noreturn]] void failWithoutAnswer();

    std::chrono::milliseconds m_timeout;
    QProcess m_process;
    AnswerLines m_lines;
    std::int64_t m_lastId = 0;
};

} // namespace skyvane
