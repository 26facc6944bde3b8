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

#include <array>

namespace skyvane {

namespace {

struct Swatch {
    const char* hex; ///< Null: the standard colour.
    QString name;
};

constexpr int ownId = 9;

std::array<Swatch, ownId> swatches()
{
    return {{
        {nullptr, localizedText("Standard")},
        {"#ffb000", localizedText("Amber")},
        {"#ff8a3d", localizedText("Orange")},
        {"#ff5c5c", localizedText("Red")},
        {"#ff7ac8", localizedText("Pink")},
        {"#b794ff", localizedText("Violet")},
        {"#62a0ff", localizedText("Blue")},
        {"#3ddcff", localizedText("Cyan")},
        {"#e8f1f2", localizedText("White")},
    }};
}

QColor colorOf(const std::optional<std::string>& hex)
{
    return toQt(ScopePalette::fromHex(hex).phosphor);
}

bool isSame(const char* swatch, const std::optional<std::string>& hex)
{
    const auto color = hex ? HexColor::components(*hex) : std::nullopt;
    return swatch == nullptr ? !color : HexColor::components(swatch) == color;
}

} // namespace

ColorField::ColorField(QWidget* parent)
    : QWidget(parent)
    , m_swatches(new QButtonGroup{this})
    , m_own(new SwatchButton{colorOf(std::nullopt), localizedText("Your own colour")})
    , m_reset(new QPushButton{localizedText("Back to Stan&dard")})
{
    auto* patches = new QHBoxLayout;
    patches->setSpacing(4);
    int id = 0;
    for (const Swatch& swatch : swatches()) {
        const auto hex = swatch.hex != nullptr ? std::optional<std::string>{swatch.hex} : std::nullopt;
        auto* button = new SwatchButton{colorOf(hex), swatch.name};
        m_swatches->addButton(button, id++);
        patches->addWidget(button);
    }
    m_swatches->addButton(m_own, ownId);
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
        if (clicked == ownId)
            return;
        const char* hex = swatches()[static_cast<std::size_t>(clicked)].hex;
        emit chosen(hex != nullptr ? std::optional<std::string>{hex} : std::nullopt);
    });
    connect(other, &QPushButton::clicked, this, &ColorField::askForOther);
    connect(m_reset, &QPushButton::clicked, this, [this] { emit chosen(std::nullopt); });
}

void ColorField::showColor(const std::optional<std::string>& hex)
{
    m_hex = hex;
    int id = 0;
    for (const Swatch& swatch : swatches()) {
        if (isSame(swatch.hex, hex))
            break;
        ++id;
    }
    m_own->setColor(colorOf(hex));
    m_own->setVisible(id == ownId);
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
