#include "ui/layout/line_breaker.h"

#include "platform/text/unicode.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr std::string_view ellipsis = "…";

/// Absorbs the rounding of a width that was measured, added up and divided again.
constexpr double tolerance = 0.01;

struct ParagraphBreak {
    std::size_t place; ///< The text's end when there is none.
    std::size_t size; ///< Bytes.
};

/// After which a line ends whatever its width (UAX #14: BK, CR, LF, NL).
ParagraphBreak nextBreak(std::string_view text, std::size_t start)
{
    constexpr std::string_view firstBytes = "\n\v\f\r\xC2\xE2";
    for (std::size_t place = text.find_first_of(firstBytes, start); place != std::string_view::npos;
         place = text.find_first_of(firstBytes, place + 1)) {
        const std::string_view rest = text.substr(place);
        for (const std::string_view kind : {"\r\n", "\u0085", "\u2028", "\u2029", "\n", "\v", "\f", "\r"}) {
            if (rest.starts_with(kind))
                return {.place = place, .size = kind.size()};
        }
    }
    return {.place = text.size(), .size = 0};
}

std::vector<std::string_view> paragraphs(std::string_view text)
{
    std::vector<std::string_view> list;
    for (std::size_t start = 0; true;) {
        const ParagraphBreak end = nextBreak(text, start);
        list.push_back(text.substr(start, end.place - start));
        if (end.size == 0)
            return list;
        start = end.place + end.size;
    }
}

std::string_view withoutTrailingBlanks(std::string_view line)
{
    const std::string_view middle = Unicode::trimmed(line);
    if (middle.empty())
        return {};
    return line.substr(0, static_cast<std::size_t>(middle.data() + middle.size() - line.data()));
}

std::size_t totalSize(const std::vector<std::string_view>& pieces, std::size_t first, std::size_t count)
{
    if (count == 0)
        return 0;
    const std::string_view last = pieces[first + count - 1];
    return static_cast<std::size_t>(last.data() + last.size() - pieces[first].data());
}

/// The largest number up to `count` for which `holds`, which stays false once it is: in steps that double,
/// then by halves, so that a line costs little however long the rest of the text is.
template <class Predicate>
std::size_t largest(std::size_t count, Predicate&& holds)
{
    std::size_t good = 0;
    std::size_t bad = 1;
    while (bad <= count && holds(bad)) {
        good = bad;
        bad = good * 2;
    }
    bad = std::min(bad, count + 1);
    while (bad - good > 1) {
        const std::size_t middle = good + (bad - good) / 2;
        (holds(middle) ? good : bad) = middle;
    }
    return good;
}

} // namespace

bool hasLineBreak(std::string_view text)
{
    return nextBreak(text, 0).size != 0;
}

LineBreaker::LineBreaker(const TextMeasurer& measurer, FontFace face, double tracking, Bounds bounds)
    : m_measurer(measurer), m_face(face), m_tracking(tracking), m_bounds(bounds)
{
}

void LineBreaker::breakText(std::string_view text)
{
    const auto list = paragraphs(text);
    for (auto paragraph = list.begin(); paragraph != list.end(); ++paragraph) {
        m_rest = *paragraph;
        if (!isAtLastLine() && breakParagraph(*paragraph))
            continue;
        const auto hasText = [](std::string_view other) { return !Unicode::trimmed(other).empty(); };
        addLast(m_rest, std::any_of(paragraph + 1, list.end(), hasText));
        return;
    }
}

bool LineBreaker::fits(std::string_view line) const
{
    if (line.empty() || std::isinf(m_bounds.width))
        return true;
    return m_bounds.width > 0 && m_measurer.width(line, m_face, m_tracking) <= m_bounds.width + tolerance;
}

/// Up to the last line that may be; says whether the paragraph ended before it.
bool LineBreaker::breakParagraph(std::string_view paragraph)
{
    if (fits(paragraph)) {
        m_lines.emplace_back(paragraph);
        return true;
    }
    const auto segments = Unicode::lineSegments(paragraph);
    std::size_t segment = 0;
    while (segment < segments.size() && !isAtLastLine()) {
        const std::size_t broken = static_cast<std::size_t>(m_rest.data() - segments[segment].data());
        const auto lineSize = [&](std::size_t count) { return totalSize(segments, segment, count) - broken; };
        const std::size_t count = largest(segments.size() - segment, [&](std::size_t number) {
            return fits(withoutTrailingBlanks(m_rest.substr(0, lineSize(number))));
        });
        if (count > 0) {
            addWrapped(m_rest.substr(0, lineSize(count)), segment + count == segments.size());
            segment += count;
        } else if (breakSegment(m_rest.substr(0, lineSize(1))) == 0) {
            ++segment;
        }
    }
    return segment == segments.size();
}

/// Fills lines with characters of a segment too wide for one, until what remains fits; says how much that is.
std::size_t LineBreaker::breakSegment(std::string_view segment)
{
    const auto characters = Unicode::characters(segment);
    std::size_t first = 0;
    while (first < characters.size() && !isAtLastLine()) {
        const std::size_t left = characters.size() - first;
        const std::size_t count = largest(left, [&](std::size_t number) {
            return fits(withoutTrailingBlanks(m_rest.substr(0, totalSize(characters, first, number))));
        });
        if (count == left)
            break;
        std::size_t taken = std::max<std::size_t>(count, 1);
        if (Unicode::trimmed(segment.substr(totalSize(characters, 0, first + taken))).empty())
            taken = left;
        addWrapped(m_rest.substr(0, totalSize(characters, first, taken)), /*endsParagraph=*/false);
        first += taken;
    }
    return totalSize(characters, first, characters.size() - first);
}

void LineBreaker::addWrapped(std::string_view line, bool endsParagraph)
{
    m_lines.emplace_back(endsParagraph && fits(line) ? line : withoutTrailingBlanks(line));
    m_rest.remove_prefix(line.size());
}

void LineBreaker::addLast(std::string_view rest, bool isMoreToCome)
{
    if (!isMoreToCome && fits(rest)) {
        m_lines.emplace_back(rest);
        return;
    }
    const std::string_view visible = withoutTrailingBlanks(rest);
    m_isTruncated = isMoreToCome || !fits(visible);
    m_lines.push_back(m_isTruncated ? truncated(visible) : std::string{visible});
}

std::string LineBreaker::truncated(std::string_view line) const
{
    if (m_bounds.width <= 0)
        return {};
    const auto characters = Unicode::characters(line);
    const auto shortened = [&](std::size_t count) {
        std::string text{withoutTrailingBlanks(line.substr(0, totalSize(characters, 0, count)))};
        return text.append(ellipsis);
    };
    return shortened(largest(characters.size(), [&](std::size_t count) { return fits(shortened(count)); }));
}

} // namespace skyvane
