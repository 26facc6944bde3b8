#pragma once

#include <QByteArray>

#include <optional>

namespace skyvane {

/// Cuts what the extension writes into lines, and holds no more than one answer may have.
class AnswerLines {
public:
    void add(const QByteArray& bytes) { m_unread += bytes; }

    /// The next whole line, without its break. Throws `ExtensionError` on one that is longer than an answer
    /// may be.
    std::optional<QByteArray> next();

private:
    QByteArray m_unread;
};

} // namespace skyvane
