#pragma once

#include <simdjson.h>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace skyvane::JSON {

/// A text is not JSON, or not of the shape that its reader asks for. what() names the place: "ac[3].alt_geom:
/// expected a whole number of 64 bits, found 1200.7".
class DecodingError : public std::runtime_error {
public:
    enum class Kind { shape, notJSON, tooLarge };

    explicit DecodingError(const std::string& problem, Kind kind = Kind::shape)
        : DecodingError({}, {.text = problem}, kind)
    {
    }

    static DecodingError missing();
    static DecodingError mismatch(const std::string& expected, const std::string& found);
    static DecodingError unknownWord(std::string_view word);

    Kind kind() const { return m_kind; }

    DecodingError inMember(std::string_view key) const;
    DecodingError inElement(std::size_t index) const;

    /// For whoever wrote the text: "kind is missing", "family is not a string", "unknown family \"huge\"".
    /// Where there is no such sentence, what().
    std::string sentence() const;

private:
    struct Problem {
        std::string text;
        std::string before{}; ///< The place, in a sentence.
        std::string after{};
    };

    DecodingError(const std::string& keyPath, const Problem& problem, Kind kind = Kind::shape);

    std::string m_keyPath;
    Problem m_problem;
    Kind m_kind;
};

/// What is read holds some dozen times its size in memory, and may come from anyone.
inline constexpr std::size_t largestText = std::size_t{8} << 20; ///< Bytes.
inline constexpr std::size_t mostElements = 50'000; ///< Of one list of records.

/// A place in a parsed `Document`, valid as long as it.
using Value = simdjson::dom::element;

/// A parsed text: strict JSON in strict UTF-8 without trailing text, at most 1,024 levels deep; a byte order
/// mark in front is skipped. A number beyond a double and half of a surrogate pair are an error of those who
/// read them only.
class Document {
public:
    /// Throws `DecodingError` when the text is not JSON or larger than `largestText`.
    explicit Document(std::string_view bytes) : Document(bytes, /*spareBytes=*/0) { }

    /// A string with some spare capacity is read where it stands; any other text is copied first.
    template <std::same_as<std::string> String>
    explicit Document(const String& bytes) : Document(bytes, bytes.capacity() - bytes.size())
    {
    }

    Value root() const { return m_root; }

private:
    Document(std::string_view bytes, std::size_t spareBytes);

    simdjson::dom::parser m_parser;
    Value m_root;
};

/// Any number whose value is whole and fits 64 bits: 1500, 1500.0, 1.5e3. Absent for every other value, also
/// for one that the nearest double would make whole.
std::optional<std::int64_t> wholeNumber(Value value);

bool isString(Value value);

/// Each throws `DecodingError` when the value is of another type.
std::string_view string(Value value);
std::string text(Value value);
double number(Value value);
bool boolean(Value value);
std::int64_t integer(Value value);
simdjson::dom::array array(Value value);
simdjson::dom::object object(Value value);

} // namespace skyvane::JSON
