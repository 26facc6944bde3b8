#include "companion/settings/color_field.h"

#include "companion/settings/swatch_button.h"
#include "core/config/hex_color.h"
#include "core/config/scope_palette.h"
#include "desk/text.h"
#include "paint/to_qt.h"

#include <QButtonGroup>
#include <QColorDialog>
#include <QHBoxLayout>
#include <QPushButton>

#include <algorithm>

namespace skyvane {

namespace {

QColor colorOf(const std::optional<std::string>& hex)
{
    return toQt(ScopePalette::fromHex(hex).phosphor);
}

std::optional<HexColor::Components> components(const std::optional<std::string>& hex)
{
    return hex ? HexColor::components(*hex) : std::nullopt;
}

} // namespace

ColorField::ColorField(QWidget* parent)
    : QWidget(parent)
    , m_accents(offeredAccents())
    , m_swatches(new QButtonGroup{this})
    , m_own(new SwatchButton{colorOf(std::nullopt), localizedText("Your own colour")})
    , m_reset(new QPushButton{localizedText("Back to Stan&dard")})
{
    auto* patches = new QHBoxLayout;
    patches->setSpacing(4);
    int id = 0;
    for (const Accent& accent : m_accents) {
        auto* button = new SwatchButton{colorOf(accent.hex), accent.name};
        m_swatches->addButton(button, id++);
        patches->addWidget(button);
    }
    m_swatches->addButton(m_own, id);
    patches->addWidget(m_own);
    patches->addStretch();
    auto* other = new QPushButton{localizedText("&Other Colour…")};
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(other);
    buttons->addWidget(m_reset);
    buttons->addStretch();
    auto* rows = new QVBoxLayout{this};
    rows->setContentsMargins({});
    rows->setSpacing(10);
    rows->addLayout(patches);
    rows->addLayout(buttons);
    setFocusPolicy(Qt::StrongFocus); // Else its label leads nowhere.

    connect(m_swatches, &QButtonGroup::idClicked, this, [this](int clicked) {
        if (const auto accent = static_cast<std::size_t>(clicked); accent < m_accents.size())
            emit chosen(m_accents[accent].hex);
    });
    connect(other, &QPushButton::clicked, this, &ColorField::askForOther);
    connect(m_reset, &QPushButton::clicked, this, [this] { emit chosen(std::nullopt); });
}

void ColorField::showColor(const std::optional<std::string>& hex)
{
    m_hex = hex;
    const auto accent = std::ranges::find(
        m_accents, components(hex), [](const Accent& offered) { return components(offered.hex); });
    const auto id = static_cast<int>(accent - m_accents.begin());
    m_own->setColor(colorOf(hex));
    m_own->setVisible(accent == m_accents.end());
    m_swatches->button(id)->setChecked(true);
    setFocusProxy(m_swatches->button(id));
    m_reset->setEnabled(id != 0);
}

/// Every colour that one tries shows at once; leaving without one puts the old one back.
void ColorField::askForOther()
{
    auto* dialog = new QColorDialog{colorOf(m_hex), this};
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(localizedText("Colour of the Widgets"));
    const auto hexOf = [](const QColor& color) { return color.name(QColor::HexRgb).toStdString(); };
    connect(dialog, &QColorDialog::currentColorChanged, this,
        [=, this](const QColor& color) { emit tried(hexOf(color)); });
    connect(dialog, &QColorDialog::colorSelected, this,
        [=, this](const QColor& color) { emit chosen(hexOf(color)); });
    connect(dialog, &QDialog::rejected, this, [this, before = m_hex] { emit chosen(before); });
    dialog->open();
}

} // namespace skyvane
