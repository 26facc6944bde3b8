#include "platform/json/value.h"

#include "platform/json/exact_number.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>

namespace skyvane::JSON {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// The value as it stands in the text, cut short, for a message.
std::string found(Value value)
{
    constexpr std::size_t enough = 40;
    if (value.is_object())
        return "an object";
    if (value.is_array())
        return "an array";
    if (std::string_view kept; value.get(kept) == simdjson::SUCCESS && Exact::isToken(kept))
        return std::string{Exact::token(kept).substr(0, enough)};
    std::string text = simdjson::to_string(value);
    if (text.size() > enough)
        text = nlohmann::json(text.substr(0, enough))
                   .dump(-1, ' ', false, nlohmann::json::error_handler_t::ignore);
    return text;
}

DecodingError mismatch(const char* expected, Value value)
{
    return DecodingError::mismatch(expected, found(value));
}

} // namespace

DecodingError::DecodingError(const std::string& keyPath, const Problem& problem, Kind kind)
    : std::runtime_error(keyPath.empty() ? problem.text : keyPath + ": " + problem.text)
    , m_keyPath(keyPath)
    , m_problem(problem)
    , m_kind(kind)
{
}

DecodingError DecodingError::missing()
{
    return {{}, {.text = "is missing", .after = " is missing"}};
}

DecodingError DecodingError::mismatch(const std::string& expected, const std::string& found)
{
    return {{}, {.text = "expected " + expected + ", found " + found, .after = " is not " + expected}};
}

DecodingError DecodingError::unknownWord(std::string_view word)
{
    const std::string quoted = '"' + std::string{word} + '"';
    return {{}, {.text = "unknown word " + quoted, .before = "unknown ", .after = ' ' + quoted}};
}

std::string DecodingError::sentence() const
{
    return m_keyPath.empty() || m_problem.after.empty() ? what()
                                                        : m_problem.before + m_keyPath + m_problem.after;
}

DecodingError DecodingError::inMember(std::string_view key) const
{
    const bool joins = !m_keyPath.empty() && m_keyPath.front() != '[';
    return {std::string{key} + (joins ? "." : "") + m_keyPath, m_problem, m_kind};
}

DecodingError DecodingError::inElement(std::size_t index) const
{
    const bool joins = !m_keyPath.empty() && m_keyPath.front() != '[';
    return {"[" + std::to_string(index) + "]" + (joins ? "." : "") + m_keyPath, m_problem, m_kind};
}

Document::Document(std::string_view bytes, std::size_t spareBytes)
{
    if (bytes.starts_with(byteOrderMark))
        bytes.remove_prefix(byteOrderMark.size());
    if (bytes.size() > largestText)
        throw DecodingError{"longer than 8 MiB", DecodingError::Kind::tooLarge};
    if (bytes.starts_with(byteOrderMark))
        throw DecodingError{"not JSON: more than one byte order mark", DecodingError::Kind::notJSON};
    const auto parse = [&] {
        const bool mustCopy = spareBytes < simdjson::SIMDJSON_PADDING;
        return m_parser.parse(bytes.data(), bytes.size(), mustCopy).get(m_root);
    };
    const bool isPlain = !Exact::mayBeRounded(bytes);
    simdjson::error_code error = isPlain ? parse() : simdjson::NUMBER_ERROR;
    if (error != simdjson::SUCCESS) {
        if (const auto kept = Exact::withTokensKept(bytes))
            error = kept->size() > largestText ? simdjson::CAPACITY : m_parser.parse(*kept).get(m_root);
        else if (!isPlain)
            error = parse();
    }
    if (error != simdjson::SUCCESS)
        throw DecodingError{
            std::string{"not JSON: "} + simdjson::error_message(error), DecodingError::Kind::notJSON};
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
    case simdjson::dom::element_type::STRING:
        return Exact::wholeNumber(value.get_string().value_unsafe());
    default:
        return std::nullopt;
    }
}

bool isString(Value value)
{
    std::string_view text;
    return value.get(text) == simdjson::SUCCESS && !Exact::isToken(text);
}

std::string_view string(Value value)
{
    std::string_view result;
    if (value.get(result) != simdjson::SUCCESS || Exact::isToken(result))
        throw mismatch("a string", value);
    return result;
}

std::string text(Value value)
{
    return std::string{string(value)};
}

double number(Value value)
{
    double result = 0;
    if (value.get(result) == simdjson::SUCCESS)
        return result;
    if (std::string_view kept; value.get(kept) == simdjson::SUCCESS) {
        if (const auto exact = Exact::number(kept))
            return *exact;
    }
    throw mismatch("a number", value);
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
