#include "companion/position/coordinate_tokens.h"

#include "platform/text/unicode.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

namespace skyvane::CoordinateTokens {

namespace {

constexpr std::size_t longestText = 200; // Bytes.

struct Word {
    std::string_view spelling;
    Token token;
};

/// In capitals; a spelling that begins another stands after it.
const auto& words()
{
    static const std::array table{
        Word{"+", Sign::plus},
        Word{"-", Sign::minus},
        Word{"\u2212", Sign::minus},
        Word{"\u2010", Sign::minus},
        Word{"\u2011", Sign::minus},
        Word{"\u2013", Sign::minus},
        Word{"°", Mark::degrees},
        Word{"º", Mark::degrees},
        Word{"\u02DA", Mark::degrees},
        Word{"DEGREES", Mark::degrees},
        Word{"DEGRÉS", Mark::degrees},
        Word{"GRADOS", Mark::degrees},
        Word{"GRAD", Mark::degrees},
        Word{"''", Mark::seconds},
        Word{"\u2032\u2032", Mark::seconds},
        Word{"\u2019\u2019", Mark::seconds},
        Word{"\"", Mark::seconds},
        Word{"\u2033", Mark::seconds},
        Word{"\u201C", Mark::seconds},
        Word{"\u201D", Mark::seconds},
        Word{"\u02BA", Mark::seconds},
        Word{"'", Mark::minutes},
        Word{"\u2032", Mark::minutes},
        Word{"\u2018", Mark::minutes},
        Word{"\u2019", Mark::minutes},
        Word{"\u02B9", Mark::minutes},
        Word{"\u00B4", Mark::minutes},
        Word{"LATITUDE", Axis::latitude},
        Word{"LATITUD", Axis::latitude},
        Word{"LAT", Axis::latitude},
        Word{"BREITENGRAD", Axis::latitude},
        Word{"BREITE", Axis::latitude},
        Word{"LONGITUDE", Axis::longitude},
        Word{"LONGITUD", Axis::longitude},
        Word{"LONG", Axis::longitude},
        Word{"LON", Axis::longitude},
        Word{"LNG", Axis::longitude},
        Word{"LÄNGENGRAD", Axis::longitude},
        Word{"LÄNGE", Axis::longitude},
        Word{"NORTH", Hemisphere::north},
        Word{"NÖRDLICHER", Hemisphere::north},
        Word{"NÖRDLICHE", Hemisphere::north},
        Word{"NORDEN", Hemisphere::north},
        Word{"NORD", Hemisphere::north},
        Word{"NORTE", Hemisphere::north},
        Word{"N", Hemisphere::north},
        Word{"SOUTH", Hemisphere::south},
        Word{"SÜDLICHER", Hemisphere::south},
        Word{"SÜDLICHE", Hemisphere::south},
        Word{"SÜDEN", Hemisphere::south},
        Word{"SÜD", Hemisphere::south},
        Word{"SUD", Hemisphere::south},
        Word{"SUR", Hemisphere::south},
        Word{"S", Hemisphere::south},
        Word{"EAST", Hemisphere::east},
        Word{"ÖSTLICHER", Hemisphere::east},
        Word{"ÖSTLICHE", Hemisphere::east},
        Word{"OSTEN", Hemisphere::east},
        Word{"OST", Hemisphere::east},
        Word{"ESTE", Hemisphere::east},
        Word{"EST", Hemisphere::east},
        Word{"E", Hemisphere::east},
        Word{"WESTLICHER", Hemisphere::west},
        Word{"WESTLICHE", Hemisphere::west},
        Word{"WESTEN", Hemisphere::west},
        Word{"WEST", Hemisphere::west},
        Word{"OUEST", Hemisphere::west},
        Word{"OESTE", Hemisphere::west},
        Word{"W", Hemisphere::west},
        Word{"O", EastOrWest{}},
        Word{",", Separator{}},
        Word{";", Separator{}},
        Word{"/", Separator{}},
        Word{"|", Separator{}},
        Word{"&", Separator{}},
    };
    return table;
}

/// What stands between the pieces and says nothing.
constexpr std::array<std::string_view, 17> blanks{" ", "\t", "\n", "\r", "\u00A0", "\u2007", "\u2009",
    "\u200A", "\u202F", "(", ")", "[", "]", "{", "}", "DE ", "OF "};

bool isDigit(std::string_view text, std::size_t place)
{
    return place < text.size() && text[place] >= '0' && text[place] <= '9';
}

std::size_t endOfDigits(std::string_view text, std::size_t place)
{
    while (isDigit(text, place))
        ++place;
    return place;
}

/// Takes the number that the text begins with.
std::optional<Number> takeNumber(std::string_view& text, Comma comma)
{
    std::size_t end = endOfDigits(text, 0);
    if (end == 0)
        return std::nullopt;
    const char next = end < text.size() ? text[end] : '\0';
    const bool isMark = next == '.' || (next == ',' && comma == Comma::decimalMark);
    const bool hasDecimals = isMark && isDigit(text, end + 1);
    if (hasDecimals)
        end = endOfDigits(text, end + 1);
    std::string digits{text.substr(0, end)};
    std::replace(digits.begin(), digits.end(), ',', '.');
    double value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    text.remove_prefix(end);
    return Number{.value = value, .isWhole = !hasDecimals};
}

bool takeBlank(std::string_view& text)
{
    const auto found = std::find_if(
        blanks.begin(), blanks.end(), [&](std::string_view blank) { return text.starts_with(blank); });
    if (found == blanks.end())
        return false;
    text.remove_prefix(found->size());
    return true;
}

std::optional<Token> takeWord(std::string_view& text)
{
    const auto& table = words();
    const auto found = std::find_if(
        table.begin(), table.end(), [&](const Word& word) { return text.starts_with(word.spelling); });
    if (found == table.end())
        return std::nullopt;
    text.remove_prefix(found->spelling.size());
    if (std::holds_alternative<Axis>(found->token)) {
        while (takeBlank(text)) { }
        if (text.starts_with(':') || text.starts_with('=') || text.starts_with('.'))
            text.remove_prefix(1);
    }
    return found->token;
}

} // namespace

std::optional<std::vector<Token>> read(std::string_view written, Comma comma)
{
    if (written.size() > longestText)
        return std::nullopt;
    const std::string capitals = Unicode::uppercased(written);
    std::string_view text = capitals;
    std::vector<Token> tokens;
    while (!text.empty()) {
        if (takeBlank(text))
            continue;
        if (const auto number = takeNumber(text, comma))
            tokens.emplace_back(*number);
        else if (const auto word = takeWord(text))
            tokens.push_back(*word);
        else
            return std::nullopt;
    }
    return tokens;
}

} // namespace skyvane::CoordinateTokens
