#include "host/extension/answer_lines.h"

#include "host/extension/error.h"
#include "protocol/limits.h"

namespace skyvane {

std::optional<QByteArray> AnswerLines::next()
{
    namespace Limits = Protocol::Limits;
    constexpr auto longestAnswer = static_cast<qsizetype>(Limits::longestAnswer);
    const qsizetype end = m_unread.indexOf('\n');
    if (end > longestAnswer || (end < 0 && m_unread.size() > longestAnswer))
        throw ExtensionError{
            "the widget extension's answer is larger than " + Limits::inKiB(Limits::longestAnswer)};
    if (end < 0)
        return std::nullopt;
    QByteArray line = m_unread.first(end);
    m_unread.remove(0, end + 1);
    return line;
}

} // namespace skyvane
