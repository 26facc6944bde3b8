#pragma once

#include "host/extension/answer_lines.h"
#include "host/extension/error.h"
#include "host/extension/program.h"
#include "host/extension/widget_entry.h"
#include "host/extension/widget_info.h"
#include "platform/json/value.h"

#include <QProcess>

#include <chrono>
#include <cstdint>
#include <nlohmann/json_fwd.hpp>
#include <string_view>
#include <vector>

namespace skyvane {

/// The widget extension as a process, asked one question at a time; it ends with this. Every function waits
/// for its answer and throws `ExtensionError` when there is none.
class ExtensionClient {
public:
    explicit ExtensionClient(const ExtensionProgram& program);
    ~ExtensionClient();
    ExtensionClient(const ExtensionClient&) = delete;
    ExtensionClient& operator=(const ExtensionClient&) = delete;

    std::vector<WidgetInfo> list();
    WidgetEntry snapshot(std::string_view kind, WidgetFamily family, bool isPreview);
    WidgetTimeline timeline(std::string_view kind, WidgetFamily family);

private:
    template <class Result>
    Result ask(std::string_view method, const nlohmann::ordered_json& params, Result (*decode)(JSON::Value));
    QByteArray nextLine();
    [[noreturn]] void failWithoutAnswer();

    std::chrono::milliseconds m_timeout;
    QProcess m_process;
    AnswerLines m_lines;
    std::int64_t m_lastId = 0;
};

} // namespace skyvane
