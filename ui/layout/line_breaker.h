#pragma once

#include "ui/layout/text_measurer.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace skyvane {

/// Whether the text itself says that a line ends: by a line feed or any other character that means it.
bool hasLineBreak(std::string_view text);

/// Breaks a text of one face into lines.
class LineBreaker {
public:
    struct Bounds {
        double width; ///< Points; may be infinite.
        std::size_t lines; ///< At least 1.
    };

    LineBreaker(const TextMeasurer& measurer, FontFace face, double tracking, Bounds bounds);

    void breakText(std::string_view text);

    const std::vector<std::string>& lines() const { return m_lines; }

    /// Whether some of the text had to be left out.
    bool isTruncated() const { return m_isTruncated; }

private:
    bool fits(std::string_view line) const;
    bool isAtLastLine() const { return m_lines.size() + 1 == m_bounds.lines; }
    bool breakParagraph(std::string_view paragraph);
    std::size_t breakSegment(std::string_view segment);
    void addWrapped(std::string_view line, bool endsParagraph);
    void addLast(std::string_view rest, bool isMoreToCome);
    std::string truncated(std::string_view line) const;

    const TextMeasurer& m_measurer;
    FontFace m_face;
    double m_tracking;
    Bounds m_bounds;
    std::vector<std::string> m_lines;
    std::string_view m_rest; ///< Of the paragraph, what no line holds yet.
    bool m_isTruncated = false;
};

} // namespace skyvane
