#include "paint/font_measurer.h"

#include "paint/to_qt.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QTextLayout>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>

namespace skyvane {

namespace {

constexpr std::size_t mostLines = 1024;
constexpr std::size_t mostScaledFonts = 64;

/// Fonts come in whole pixels only. Everything is shaped at this size and scaled, which makes widths
/// proportional.
constexpr int shapingSize = 128;

/// Some desktops, and every session without one, name a proportional family here.
QString fixedFamily()
{
    const QFont named = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (QFontInfo{named}.fixedPitch())
        return QFontInfo{named}.family();
    return QStringLiteral("monospace");
}

QFont::Weight weight(FontWeight value)
{
    switch (value) {
    case FontWeight::regular:
        return QFont::Normal;
    case FontWeight::semibold:
        return QFont::DemiBold;
    case FontWeight::bold:
        return QFont::Bold;
    }
    return QFont::Normal;
}

/// Whether the toolkit ends a line there even where none may end.
bool endsLine(QChar character)
{
    switch (character.unicode()) {
    case u'\n':
    case u'\v':
    case u'\f':
    case u'\r':
    case u'\u0085':
    case u'\u2028':
    case u'\u2029':
        return true;
    default:
        return false;
    }
}

/// Letters of a script whose letters join, as those of Arabic do, which blanks between them would tear apart.
bool joinsLetters(const QString& text)
{
    return std::ranges::any_of(text, [](QChar character) {
        return character.joiningType() == QChar::Joining_Dual
            || character.joiningType() == QChar::Joining_Right;
    });
}

/// Laid out on one line, however long and whatever is in it.
std::unique_ptr<QTextLayout> oneLine(QString text, const QFont& font)
{
    std::replace_if(text.begin(), text.end(), endsLine, QChar{u' '});
    auto layout = std::make_unique<QTextLayout>(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setUseDesignMetrics(true);
    layout->setTextOption(option);
    layout->setCacheEnabled(true);
    layout->beginLayout();
    layout->createLine();
    layout->endLayout();
    return layout;
}

/// What makes the shape of a line, `tracking` a share of the size.
std::string keyOf(std::string_view text, const FontFace& face, double tracking, Hinting hinting)
{
    struct {
        double tracking;
        std::int16_t weight;
        std::int16_t design;
        std::int32_t hinting;
    } const fields{tracking, static_cast<std::int16_t>(face.weight), static_cast<std::int16_t>(face.design),
        static_cast<std::int32_t>(hinting)};
    std::string key(sizeof fields, '\0');
    std::memcpy(key.data(), &fields, sizeof fields);
    return key.append(text);
}

} // namespace

FontMeasurer::FontMeasurer()
    : m_interfaceFont(QFontDatabase::systemFont(QFontDatabase::GeneralFont).family())
    , m_fixedFont(fixedFamily())
{
    m_fixedFont.setStyleHint(QFont::Monospace);
}

double FontMeasurer::width(std::string_view text, const FontFace& face, double tracking) const
{
    return shapedLine(text, face, tracking / face.size, Hinting::none).width * face.size / shapingSize;
}

LineMetrics FontMeasurer::lineMetrics(const FontFace& face) const
{
    const LineMetrics& metrics = shapingFace(face).metrics;
    const double scale = face.size / shapingSize;
    return {.ascent = metrics.ascent * scale, .descent = metrics.descent * scale};
}

QList<QGlyphRun> FontMeasurer::glyphs(
    std::string_view text, const FontFace& face, double tracking, Hinting hinting) const
{
    const double scale = face.size / shapingSize;
    QList<QGlyphRun> runs = shapedLine(text, face, tracking / face.size, hinting).runs;
    for (QGlyphRun& run : runs) {
        QList<QPointF> positions = run.positions();
        for (QPointF& position : positions)
            position *= scale;
        run.setRawFont(scaled(run.rawFont(), scale));
        run.setPositions(positions);
    }
    return runs;
}

/// Texts are measured before they are painted, and tried in several sizes: their shape is the same in all.
const FontMeasurer::ShapedLine& FontMeasurer::shapedLine(
    std::string_view text, const FontFace& face, double tracking, Hinting hinting) const
{
    std::string key = keyOf(text, face, tracking, hinting);
    if (const auto known = m_lines.find(key); known != m_lines.end())
        return known->second;
    if (m_lines.size() == mostLines)
        m_lines.clear();
    QFont font = shapingFace(face).font;
    if (hinting == Hinting::usual) {
        font.setHintingPreference(QFont::PreferDefaultHinting);
        font.setStyleStrategy(QFont::PreferDefault);
    }
    const QString string = toQString(text);
    if (tracking != 0 && !joinsLetters(string))
        font.setLetterSpacing(QFont::AbsoluteSpacing, tracking * shapingSize);
    return m_lines.emplace(std::move(key), shape(string, font)).first->second;
}

FontMeasurer::ShapedLine FontMeasurer::shape(const QString& text, const QFont& font)
{
    const auto layout = oneLine(text, font);
    const QTextLine line = layout->lineAt(0);
    const QPointF baseline{line.x(), line.y() + line.ascent()};
    ShapedLine shaped{.width = line.horizontalAdvance(), .runs = line.glyphRuns()};
    for (QGlyphRun& run : shaped.runs) {
        QList<QPointF> positions = run.positions();
        for (QPointF& position : positions)
            position -= baseline;
        run.setPositions(positions);
    }
    return shaped;
}

QRawFont FontMeasurer::scaled(const QRawFont& shaped, double scale) const
{
    const auto known = std::find_if(m_scaled.begin(), m_scaled.end(),
        [&](const ScaledFont& candidate) { return candidate.scale == scale && candidate.shaped == shaped; });
    if (known != m_scaled.end())
        return known->font;
    if (m_scaled.size() == mostScaledFonts)
        m_scaled.clear();
    QRawFont font = shaped;
    font.setPixelSize(shaped.pixelSize() * scale);
    m_scaled.push_back({.shaped = shaped, .scale = scale, .font = font});
    return font;
}

const FontMeasurer::ShapingFace& FontMeasurer::shapingFace(const FontFace& face) const
{
    const std::pair key{face.weight, face.design};
    if (const auto known = m_faces.find(key); known != m_faces.end())
        return known->second;
    QFont font = face.design == FontDesign::monospaced ? m_fixedFont : m_interfaceFont;
    font.setPixelSize(shapingSize);
    font.setWeight(weight(face.weight));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(QFont::PreferAntialias);
    const QFontMetricsF metrics{font};
    return m_faces.emplace(key, ShapingFace{font, {metrics.ascent(), metrics.descent()}}).first->second;
}

} // namespace skyvane
