#include "ui/layout/text_layout.h"

#include "ui/layout/bounded.h"
#include "ui/layout/line_breaker.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace skyvane {

namespace {

constexpr double smallestScale = 0.01;

struct Attempt {
    TextBlock block;
    bool isTruncated;
};

std::size_t lineLimit(const Text& text)
{
    return text.lineLimit ? static_cast<std::size_t>(std::max(*text.lineLimit, 1))
                          : std::numeric_limits<std::size_t>::max();
}

Attempt attempt(const Text& text, double scale, double width, const TextMeasurer& measurer)
{
    FontFace face = faceOf(text.font);
    face.size *= scale;
    const double tracking = boundedLength(text.tracking) * scale;

    LineBreaker breaker{measurer, face, tracking, {.width = width, .lines = lineLimit(text)}};
    breaker.breakText(text.string);

    TextBlock block{.lines = {}, .face = face, .tracking = tracking, .metrics = measurer.lineMetrics(face)};
    for (const std::string& line : breaker.lines()) {
        const double lineWidth = line.empty() ? 0 : std::max(0.0, measurer.width(line, face, tracking));
        block.lines.push_back({.string = line, .width = lineWidth});
    }
    return {.block = std::move(block), .isTruncated = breaker.isTruncated()};
}

/// Widths are proportional to the size, so for one line the scale is a quotient.
TextBlock shrunkLine(const Text& text, double minimum, double width, const TextMeasurer& measurer)
{
    const double ideal = measurer.width(text.string, faceOf(text.font), boundedLength(text.tracking));
    const double scale = ideal > 0 ? std::clamp(width / ideal, minimum, 1.0) : minimum;
    return attempt(text, scale, width, measurer).block;
}

/// Where lines break changes with the scale, so for several the largest that holds all is searched.
TextBlock shrunkLines(const Text& text, double minimum, double width, const TextMeasurer& measurer)
{
    constexpr int halvings = 7;
    Attempt best = attempt(text, minimum, width, measurer);
    if (best.isTruncated)
        return best.block;
    double good = minimum;
    double bad = 1;
    for (int step = 0; step < halvings; ++step) {
        const double middle = (good + bad) / 2;
        Attempt next = attempt(text, middle, width, measurer);
        (next.isTruncated ? bad : good) = middle;
        if (!next.isTruncated)
            best = std::move(next);
    }
    return best.block;
}

} // namespace

Size TextBlock::size() const
{
    double width = 0;
    for (const Line& line : lines)
        width = std::max(width, line.width);
    return {.width = width, .height = static_cast<double>(lines.size()) * metrics.height()};
}

FontFace faceOf(const Font& font)
{
    constexpr double smallest = 0.1;
    constexpr double largest = 1000;
    return {.size = std::min(largest, std::max(smallest, font.size.points)),
        .weight = font.weight,
        .design = font.design};
}

TextBlock layoutText(const Text& text, double width, const TextMeasurer& measurer)
{
    Attempt full = attempt(text, 1, width, measurer);
    const double minimum = std::max(smallestScale, text.minimumScale);
    if (!full.isTruncated || !(minimum < 1))
        return std::move(full.block);
    const bool isOneLine = lineLimit(text) == 1 && !hasLineBreak(text.string);
    return isOneLine ? shrunkLine(text, minimum, width, measurer)
                     : shrunkLines(text, minimum, width, measurer);
}

} // namespace skyvane
