#include "platform/json/value.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>

namespace skyvane::JSON {

namespace {

constexpr std::size_t longestInteger = 18; ///< Digits that always fit a signed 64-bit integer.

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// Past the closing quote of the string that opens at `start`.
std::size_t skipString(std::string_view text, std::size_t start)
{
    std::size_t at = start + 1;
    while (at < text.size() && text[at] != '"')
        at += text[at] == '\\' ? 2 : 1;
    return at + 1;
}

/// The parser refuses whole numbers beyond 64 bits; written with a fraction they are doubles like any other.
std::string withLongIntegersAsDoubles(std::string_view text)
{
    std::string result;
    result.reserve(text.size() + 64);
    std::size_t at = 0;
    while (at < text.size()) {
        const std::size_t start = at;
        if (text[at] == '"') {
            at = std::min(skipString(text, at), text.size());
            result += text.substr(start, at - start);
        } else if (isDigit(text[at])) {
            while (at < text.size() && isDigit(text[at]))
                ++at;
            result += text.substr(start, at - start);
            const bool endsThere
                = at == text.size() || std::string_view{".eE"}.find(text[at]) == std::string_view::npos;
            const bool isFraction
                = start > 0 && std::string_view{".eE+"}.find(text[start - 1]) != std::string_view::npos;
            if (at - start > longestInteger && endsThere && !isFraction)
                result += ".0";
        } else {
            result += text[at++];
        }
    }
    return result;
}

/// The value as it stands in the text, cut short, for a message.
std::string found(Value value)
{
    constexpr std::size_t enough = 40;
    if (value.is_object())
        return "an object";
    if (value.is_array())
        return "an array";
    std::string text = simdjson::to_string(value);
    if (text.size() > enough)
        text = nlohmann::json(text.substr(0, enough))
                   .dump(-1, ' ', false, nlohmann::json::error_handler_t::ignore);
    return text;
}

DecodingError mismatch(const char* expected, Value value)
{
    return DecodingError{std::string{"expected "} + expected + ", found " + found(value)};
}

} // namespace

DecodingError::DecodingError(const std::string& keyPath, const std::string& problem)
    : std::runtime_error(keyPath.empty() ? problem : keyPath + ": " + problem)
    , m_keyPath(keyPath)
    , m_problem(problem)
{
}

DecodingError DecodingError::inMember(std::string_view key) const
{
    const bool joins = !m_keyPath.empty() && m_keyPath.front() != '[';
    return {std::string{key} + (joins ? "." : "") + m_keyPath, m_problem};
}

DecodingError DecodingError::inElement(std::size_t index) const
{
    const bool joins = !m_keyPath.empty() && m_keyPath.front() != '[';
    return {"[" + std::to_string(index) + "]" + (joins ? "." : "") + m_keyPath, m_problem};
}

Document::Document(std::string_view bytes, std::size_t spareBytes)
{
    if (bytes.size() > largestText)
        throw DecodingError{"longer than 8 MiB"};
    const bool mustCopy = spareBytes < simdjson::SIMDJSON_PADDING;
    simdjson::error_code error = m_parser.parse(bytes.data(), bytes.size(), mustCopy).get(m_root);
    if (error == simdjson::NUMBER_ERROR)
        error = m_parser.parse(withLongIntegersAsDoubles(bytes)).get(m_root);
    if (error != simdjson::SUCCESS)
        throw DecodingError{std::string{"not JSON: "} + simdjson::error_message(error)};
}

std::optional<std::int64_t> wholeNumber(Value value)
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    switch (value.type()) {
    case simdjson::dom::element_type::INT64:
        return value.get_int64().value_unsafe();
    case simdjson::dom::element_type::DOUBLE: {
        const double whole = value.get_double().value_unsafe();
        if (whole == std::trunc(whole) && whole >= -limit && whole < limit)
            return static_cast<std::int64_t>(whole);
        return std::nullopt;
    }
    default:
        return std::nullopt;
    }
}

std::string_view string(Value value)
{
    std::string_view result;
    if (value.get(result) != simdjson::SUCCESS)
        throw mismatch("a string", value);
    return result;
}

double number(Value value)
{
    double result = 0;
    if (value.get(result) != simdjson::SUCCESS)
        throw mismatch("a number", value);
    return result;
}

bool boolean(Value value)
{
    bool result = false;
    if (value.get(result) != simdjson::SUCCESS)
        throw mismatch("true or false", value);
    return result;
}

std::int64_t integer(Value value)
{
    if (const auto whole = wholeNumber(value))
        return *whole;
    throw mismatch("a whole number of 64 bits", value);
}

simdjson::dom::array array(Value value)
{
    simdjson::dom::array result;
    if (value.get(result) != simdjson::SUCCESS)
        throw mismatch("an array", value);
    return result;
}

simdjson::dom::object object(Value value)
{
    simdjson::dom::object result;
    if (value.get(result) != simdjson::SUCCESS)
        throw mismatch("an object", value);
    return result;
}

} // namespace skyvane::JSON
