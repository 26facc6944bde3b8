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

bool isASCII(std::string_view text)
{
    return std::all_of(
        text.begin(), text.end(), [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
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
    icu::StringByteSink<std::string> sink{&result, length(text)};
    UErrorCode status = U_ZERO_ERROR;
    icu::CaseMap::utf8ToTitle("", 0, nullptr, {text.data(), length(text)}, sink, nullptr, status);
    return result;
}

std::vector<std::string_view> characters(std::string_view text)
{
    // Without CR LF, every ASCII character is a cluster of its own.
    if (isASCII(text) && text.find('\r') == std::string_view::npos) {
        std::vector<std::string_view> list;
        list.reserve(text.size());
        for (std::size_t index = 0; index < text.size(); ++index)
            list.push_back(text.substr(index, 1));
        return list;
    }
    return pieces(text, breakIterator<icu::BreakIterator::createCharacterInstance>());
}

std::vector<std::string_view> lineSegments(std::string_view text)
{
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
