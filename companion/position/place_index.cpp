#include "companion/position/place_index.h"

#include "desk/text.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <tuple>
#include <utility>

namespace skyvane {

namespace {

constexpr int noMatch = 9;

/// Of a letter that has no plain letter inside; null of every other.
const char* plainLetters(QChar letter)
{
    static constexpr std::array table{std::pair{u'æ', "ae"}, std::pair{u'œ', "oe"}, std::pair{u'ø', "o"},
        std::pair{u'ł', "l"}, std::pair{u'đ', "d"}, std::pair{u'ð', "d"}, std::pair{u'þ', "th"},
        std::pair{u'ı', "i"}};
    const auto row = std::ranges::find(table, letter.unicode(), &std::pair<char16_t, const char*>::first);
    return row != table.end() ? row->second : nullptr;
}

/// Small letters without marks, single blanks in place of all that is neither letter nor digit.
QString folded(const QString& text)
{
    QString result;
    for (const QChar character : text.toCaseFolded().normalized(QString::NormalizationForm_KD)) {
        if (const char* plain = plainLetters(character))
            result += QLatin1StringView{plain};
        else if (character.isLetterOrNumber() || character.isSurrogate())
            result += character;
        else if (!character.isMark() && character != u'\'' && character != u'\u2019')
            result += u' ';
    }
    return result.simplified();
}

QStringList wordsOf(const QString& text)
{
    return text.split(u' ', Qt::SkipEmptyParts);
}

bool isBegun(const QStringList& words, const QString& typed)
{
    return std::any_of(
        words.begin(), words.end(), [&](const QString& word) { return word.startsWith(typed); });
}

} // namespace

PlaceIndex::PlaceIndex(std::vector<Place> places)
{
    m_entries.reserve(places.size());
    for (Place& place : places) {
        QStringList names{folded(toQString(place.name)), folded(toQString(place.englishName))};
        names.removeDuplicates();
        QStringList nameWords = wordsOf(names.join(u' ')) + wordsOf(folded(toQString(place.code)));
        QStringList regionWords = wordsOf(folded(toQString(place.region)));
        m_entries.push_back({
            .place = std::move(place),
            .names = std::move(names),
            .nameWords = std::move(nameWords),
            .regionWords = std::move(regionWords),
        });
    }
}

int PlaceIndex::rank(const Entry& entry, const QString& typed, const QStringList& words)
{
    if (entry.names.contains(typed) || (!entry.place.code.empty() && entry.nameWords.back() == typed))
        return 0;
    const auto anyName
        = [&](auto&& holds) { return std::any_of(entry.names.begin(), entry.names.end(), holds); };
    if (anyName([&](const QString& name) { return name.startsWith(typed); }))
        return 1;
    const auto isKnown = [&](const QString& word) {
        return isBegun(entry.nameWords, word) || isBegun(entry.regionWords, word);
    };
    if (isBegun(entry.nameWords, words.front()) && std::all_of(words.begin() + 1, words.end(), isKnown))
        return anyName([&](const QString& name) { return name.startsWith(words.front()); }) ? 2 : 3;
    constexpr int tellingLength = 3;
    if (typed.size() >= tellingLength && anyName([&](const QString& name) { return name.contains(typed); }))
        return 4;
    return noMatch;
}

std::vector<Place> PlaceIndex::find(const QString& typed, const QString& countryCode, std::size_t limit) const
{
    const QString text = folded(typed);
    const QStringList words = wordsOf(text);
    if (words.isEmpty())
        return {};
    const std::string country = countryCode.toUpper().toStdString();
    std::vector<std::pair<int, const Entry*>> matches;
    for (const Entry& entry : m_entries) {
        if (const int match = rank(entry, text, words); match < noMatch)
            matches.emplace_back(match, &entry);
    }
    const auto order = [&](const std::pair<int, const Entry*>& match) {
        const Place& place = match.second->place;
        const bool isNamed = match.first == 0;
        const std::array weaknesses{!place.isPrincipal, place.countryCode != country};
        return std::tuple(match.first, !place.code.empty(), weaknesses[isNamed ? 0 : 1],
            weaknesses[isNamed ? 1 : 0], place.name.size(), std::string_view{place.name},
            std::string_view{place.region});
    };
    const auto end = matches.begin() + static_cast<std::ptrdiff_t>(std::min(limit, matches.size()));
    std::partial_sort(matches.begin(), end, matches.end(),
        [&](const auto& one, const auto& other) { return order(one) < order(other); });
    std::vector<Place> found;
    std::transform(matches.begin(), end, std::back_inserter(found),
        [](const auto& match) { return match.second->place; });
    return found;
}

} // namespace skyvane
