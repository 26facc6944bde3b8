#include "companion/position/folded.h"

#include <QString>

#include <algorithm>
#include <array>
#include <utility>

namespace skyvane::Folded {

namespace {

/// Of a letter that has no plain letter inside; null of every other.
const char* plainLetters(QChar letter)
{
    static constexpr std::array table{std::pair{u'æ', "ae"}, std::pair{u'œ', "oe"}, std::pair{u'ø', "o"},
        std::pair{u'ł', "l"}, std::pair{u'đ', "d"}, std::pair{u'ð', "d"}, std::pair{u'þ', "th"},
        std::pair{u'ı', "i"}};
    const auto row = std::ranges::find(table, letter.unicode(), &std::pair<char16_t, const char*>::first);
    return row != table.end() ? row->second : nullptr;
}

std::string foldedByUnicode(std::string_view name)
{
    QString result;
    const QString text = QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
    for (const QChar character : text.toCaseFolded().normalized(QString::NormalizationForm_KD)) {
        if (const char* plain = plainLetters(character))
            result += QLatin1StringView{plain};
        else if (character.isLetterOrNumber() || character.isSurrogate())
            result += character;
        else if (!character.isMark() && character != u'\'' && character != u'\u2019')
            result += u' ';
    }
    return result.simplified().toStdString();
}

bool isASCII(char character)
{
    return static_cast<unsigned char>(character) < 0x80;
}

std::u32string codePoints(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())).toStdU32String();
}

template <class Text>
bool areNearly(Text one, Text other)
{
    if (one.size() > other.size())
        std::swap(one, other);
    if (other.size() - one.size() > 1)
        return false;
    const auto start = static_cast<std::size_t>(std::ranges::mismatch(one, other).in1 - one.begin());
    one.remove_prefix(start);
    other.remove_prefix(start);
    while (!one.empty() && one.back() == other.back()) {
        one.remove_suffix(1);
        other.remove_suffix(1);
    }
    const bool isSwapped = one.size() == 2 && other.size() == 2 && one[0] == other[1] && one[1] == other[0];
    return (one.size() <= 1 && other.size() <= 1) || isSwapped;
}

} // namespace

std::string text(std::string_view name)
{
    std::string result;
    result.reserve(name.size());
    for (const char character : name) {
        if (!isASCII(character))
            return foldedByUnicode(name);
        if (character >= 'A' && character <= 'Z')
            result += static_cast<char>(character - 'A' + 'a');
        else if ((character >= 'a' && character <= 'z') || (character >= '0' && character <= '9'))
            result += character;
        else if (character != '\'' && !result.empty() && result.back() != ' ')
            result += ' ';
    }
    if (result.ends_with(' '))
        result.pop_back();
    return result;
}

std::string writtenOut(std::string_view name)
{
    static constexpr std::array table{std::pair{"ä", "ae"}, std::pair{"ö", "oe"}, std::pair{"ü", "ue"},
        std::pair{"Ä", "ae"}, std::pair{"Ö", "oe"}, std::pair{"Ü", "ue"}};
    std::string result{name};
    for (const auto& [umlaut, letters] : table) {
        const std::string_view written = umlaut;
        for (std::size_t place = result.find(written); place != std::string::npos;
             place = result.find(written))
            result.replace(place, written.size(), letters);
    }
    return result == name ? std::string{} : text(result);
}

std::vector<std::string_view> words(std::string_view folded)
{
    std::vector<std::string_view> list;
    while (!folded.empty()) {
        const std::size_t end = std::min(folded.find(' '), folded.size());
        if (end > 0)
            list.push_back(folded.substr(0, end));
        folded.remove_prefix(std::min(end + 1, folded.size()));
    }
    return list;
}

bool isNearly(std::string_view one, std::string_view other)
{
    const bool isPlain = std::ranges::all_of(one, isASCII);
    if (isPlain != std::ranges::all_of(other, isASCII))
        return false;
    return isPlain ? areNearly(one, other)
                   : areNearly(std::u32string_view{codePoints(one)}, std::u32string_view{codePoints(other)});
}

} // namespace skyvane::Folded
