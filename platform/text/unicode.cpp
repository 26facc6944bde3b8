#include "platform/text/unicode.h"

#include <unicode/brkiter.h>
#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/locid.h>
#include <unicode/uchar.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace skyvane::Unicode {

namespace {

bool isBlank(UChar32 character)
{
    return character == '\t' || u_charType(character) == U_SPACE_SEPARATOR;
}

std::int32_t length(std::string_view text)
{
    return static_cast<std::int32_t>(text.size());
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion" // The library's macros narrow on purpose.
UChar32 nextCodePoint(std::string_view text, std::int32_t& offset)
{
    UChar32 character = 0;
    U8_NEXT_OR_FFFD(text.data(), offset, length(text), character);
    return character;
}

UChar32 previousCodePoint(std::string_view text, std::int32_t& offset)
{
    UChar32 character = 0;
    U8_PREV_OR_FFFD(text.data(), 0, offset, character);
    return character;
}
#pragma GCC diagnostic pop

UChar32 firstCodePoint(std::string_view text)
{
    std::int32_t offset = 0;
    return text.empty() ? 0 : nextCodePoint(text, offset);
}

// The library's rules for breaks and what reads them take 1.3 MiB. Most texts of widgets do well without:
// that the two answers below are the library's is tested.

/// Whether every code point is a character: in Latin-1 none but CR and LF make one together.
bool areAllCharacters(std::string_view text)
{
    constexpr UChar32 last = 0xFF;
    bool areAll = text.find('\r') == std::string_view::npos;
    for (std::int32_t at = 0; areAll && at < length(text);)
        areAll = nextCodePoint(text, at) <= last;
    return areAll;
}

/// Whether a line ends after blanks only: between Latin-1's letters, digits, middle dot, and after one of
/// them what stands in numbers and times (UAX #14: AL, NU, IS).
bool breaksAfterBlanksOnly(std::string_view text)
{
    const auto isWord = [](UChar32 character) {
        return (character < 0x80 && u_isalnum(character) != 0) || character == 0xB7
            || (character >= 0xC0 && character <= 0xFF);
    };
    const auto isInfix
        = [](UChar32 character) { return character == '.' || character == ',' || character == ':'; };
    bool isInWord = false;
    for (std::int32_t at = 0; at < length(text);) {
        const UChar32 character = nextCodePoint(text, at);
        if (character != ' ' && !isWord(character) && !(isInWord && isInfix(character)))
            return false;
        isInWord = character != ' ';
    }
    return true;
}

std::vector<std::string_view> codePoints(std::string_view text)
{
    std::vector<std::string_view> list;
    list.reserve(text.size());
    for (std::int32_t at = 0; at < length(text);) {
        const std::int32_t start = at;
        nextCodePoint(text, at);
        list.push_back(text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(at - start)));
    }
    return list;
}

/// Each with the blanks that follow it.
std::vector<std::string_view> words(std::string_view text)
{
    std::vector<std::string_view> list;
    while (!text.empty()) {
        const std::size_t end = text.find_first_not_of(' ', std::min(text.find(' '), text.size()));
        list.push_back(text.substr(0, end));
        text.remove_prefix(list.back().size());
    }
    return list;
}

/// The text's beginning up to and with the first punctuation that ends a word: all but apostrophes. The
/// library (UAX #29) takes the full stops inside "U.S." for parts of one word.
std::string_view throughPunctuation(std::string_view text)
{
    constexpr UChar32 apostrophe = 0x2019;
    for (std::int32_t at = 0; at < length(text);) {
        const UChar32 character = nextCodePoint(text, at);
        if (u_ispunct(character) != 0 && character != '\'' && character != apostrophe)
            return text.substr(0, static_cast<std::size_t>(at));
    }
    return text;
}

/// One of a kind is made from the library's rules, which takes long; the others are copies.
template <auto make>
std::unique_ptr<icu::BreakIterator> breakIterator()
{
    static const std::unique_ptr<const icu::BreakIterator> first = [] {
        UErrorCode status = U_ZERO_ERROR;
        return std::unique_ptr<const icu::BreakIterator>{make(icu::Locale::getRoot(), status)};
    }();
    return std::unique_ptr<icu::BreakIterator>{first ? first->clone() : nullptr};
}

std::vector<std::string_view> pieces(std::string_view text, std::unique_ptr<icu::BreakIterator> breaks)
{
    UErrorCode status = breaks ? U_ZERO_ERROR : U_MEMORY_ALLOCATION_ERROR;
    const std::unique_ptr<UText, decltype(&utext_close)> characters{
        utext_openUTF8(nullptr, text.data(), length(text), &status), utext_close};
    if (U_SUCCESS(status))
        breaks->setText(characters.get(), status);
    if (U_FAILURE(status))
        return {text};

    std::vector<std::string_view> list;
    auto start = static_cast<std::size_t>(breaks->first());
    for (std::int32_t end = breaks->next(); end != icu::BreakIterator::DONE; end = breaks->next()) {
        list.push_back(text.substr(start, static_cast<std::size_t>(end) - start));
        start = static_cast<std::size_t>(end);
    }
    return list;
}

} // namespace

std::string_view trimmed(std::string_view text)
{
    std::int32_t start = 0;
    for (std::int32_t next = start; start < length(text) && isBlank(nextCodePoint(text, next));
         start = next) { }
    std::int32_t end = length(text);
    for (std::int32_t previous = end; end > start && isBlank(previousCodePoint(text, previous));
         end = previous) { }
    return text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start));
}

std::string uppercased(std::string_view text)
{
    std::string result;
    icu::StringByteSink<std::string> sink{&result, length(text)};
    UErrorCode status = U_ZERO_ERROR;
    icu::CaseMap::utf8ToUpper("", 0, {text.data(), length(text)}, sink, nullptr, status);
    return result;
}

std::string wordsCapitalized(std::string_view text)
{
    std::string result;
    const auto words = breakIterator<icu::BreakIterator::createWordInstance>();
    while (!text.empty()) {
        const std::string_view stretch = throughPunctuation(text);
        icu::StringByteSink<std::string> sink{&result, length(stretch)};
        UErrorCode status = U_ZERO_ERROR;
        icu::CaseMap::utf8ToTitle("", U_TITLECASE_ADJUST_TO_CASED, words.get(),
            {stretch.data(), length(stretch)}, sink, nullptr, status);
        text.remove_prefix(stretch.size());
    }
    return result;
}

std::vector<std::string_view> characters(std::string_view text)
{
    if (areAllCharacters(text))
        return codePoints(text);
    return pieces(text, breakIterator<icu::BreakIterator::createCharacterInstance>());
}

std::vector<std::string_view> lineSegments(std::string_view text)
{
    if (breaksAfterBlanksOnly(text))
        return words(text);
    return pieces(text, breakIterator<icu::BreakIterator::createLineInstance>());
}

bool isLetter(std::string_view character)
{
    return u_isUAlphabetic(firstCodePoint(character)) != 0;
}

bool isNumber(std::string_view character)
{
    return u_getNumericValue(firstCodePoint(character)) != U_NO_NUMERIC_VALUE;
}

} // namespace skyvane::Unicode
