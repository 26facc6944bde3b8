#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace skyvane {

/// A text that is a URI reference to the letter of RFC 3986: no blank, no bare "%", nothing outside ASCII.
class URL {
public:
    /// Absent when the text is empty or forms no URL.
    static std::optional<URL> parse(std::string_view text);

    const std::string& text() const { return m_text; }

    /// The scheme in lower case, without the colon; empty when the reference has none.
    std::string scheme() const;

    bool operator==(const URL&) const = default;

private:
    explicit URL(std::string text) : m_text(std::move(text)) { }

    std::string m_text;
};

} // namespace skyvane
