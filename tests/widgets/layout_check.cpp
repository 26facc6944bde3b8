#include "tests/widgets/layout_check.h"

#include "platform/text/localized.h"
#include "platform/text/unicode.h"
#include "tests/ui/layout/even_measurer.h"
#include "widgets/skyvane_widget_bundle.h"

#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>

namespace skyvane::test {

namespace {

constexpr double tolerance = 0.05;

struct Placed {
    std::string name;
    Rect frame;
};

Rect frameOf(const TextLine& line, const TextMeasurer& measurer)
{
    const LineMetrics metrics = measurer.lineMetrics(line.face);
    return {line.origin.x, line.origin.y - metrics.ascent, line.width, metrics.height()};
}

bool isBeyond(const Rect& frame, const Size& size, double margin)
{
    return frame.x < margin - tolerance || frame.y < margin - tolerance
        || frame.x + frame.width > size.width - margin + tolerance
        || frame.y + frame.height > size.height - margin + tolerance;
}

bool fillsASquare(std::string_view character)
{
    const icu::UnicodeString text = icu::UnicodeString::fromUTF8(
        icu::StringPiece{character.data(), static_cast<std::int32_t>(character.size())});
    const int width = u_getIntPropertyValue(text.char32At(0), UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH;
}

class SquareMeasurer : public EvenMeasurer {
public:
    double width(std::string_view text, const FontFace& face, double tracking) const override
    {
        constexpr double more = 0.4; // Of the size.
        const auto squares = std::ranges::count_if(Unicode::characters(text), fillsASquare);
        return EvenMeasurer::width(text, face, tracking) + static_cast<double>(squares) * more * face.size;
    }
};

bool overlap(const Rect& one, const Rect& other)
{
    return one.x + one.width > other.x + tolerance && other.x + other.width > one.x + tolerance
        && one.y + one.height > other.y + tolerance && other.y + other.height > one.y + tolerance;
}

} // namespace

std::vector<LaidOut> laidOut(const SkyEntry& entry)
{
    const SquareMeasurer measurer;
    std::vector<LaidOut> all;
    for (const Widget& widget : SkyvaneWidgetBundle{}.body()) {
        for (const WidgetFamily family : widget.supportedFamilies) {
            const std::string_view name = WidgetContainer::name(family);
            all.push_back({
                .title = widget.displayName + ", " + std::string{name},
                .list = WidgetContainer::layout(
                    widget.content(entry, family).view, family, measurer, textDirection()),
            });
        }
    }
    return all;
}

std::vector<std::string> layoutProblems(const DisplayList& list, const TextMeasurer& measurer)
{
    std::vector<Placed> texts;
    std::vector<std::string> problems;
    for (const DisplayItem& item : list.items) {
        if (const auto* line = std::get_if<TextLine>(&item))
            texts.push_back({line->string, frameOf(*line, measurer)});
        else if (const auto* glyph = std::get_if<Pictogram>(&item)) {
            const Rect frame{glyph->center.x - glyph->side / 2, glyph->center.y - glyph->side / 2,
                glyph->side, glyph->side};
            if (isBeyond(frame, list.size, 0))
                problems.push_back(glyph->name + " leaves the widget");
        }
    }
    for (std::size_t index = 0; index < texts.size(); ++index) {
        if (isBeyond(texts[index].frame, list.size, WidgetContainer::contentMargin))
            problems.push_back("\"" + texts[index].name + "\" leaves the margins");
        for (std::size_t other = index + 1; other < texts.size(); ++other) {
            if (overlap(texts[index].frame, texts[other].frame))
                problems.push_back("\"" + texts[index].name + "\" lies over \"" + texts[other].name + "\"");
        }
    }
    return problems;
}

std::vector<std::string> textsOf(const DisplayList& list)
{
    std::vector<std::string> texts;
    for (const DisplayItem& item : list.items) {
        if (const auto* line = std::get_if<TextLine>(&item))
            texts.push_back(line->string);
    }
    return texts;
}

} // namespace skyvane::test
