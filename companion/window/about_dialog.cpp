#include "companion/window/about_dialog.h"

#include "companion/look/credits.h"
#include "companion/look/link_label.h"
#include "companion/look/type_scale.h"
#include "desk/text.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QVBoxLayout>

namespace skyvane {

namespace {

QLabel* paragraph(const QString& richText)
{
    auto* label = new LinkLabel{richText};
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextBrowserInteraction);
    return label;
}

QStringList paragraphs()
{
    const auto from
        = [](const QString& words, const QString& links) { return words + QStringLiteral("<br>") + links; };
    return {
        localizedText("The aircraft around your home, on your desktop."),
        from(localizedText("Aircraft, from the receivers of volunteers:"), Credits::aircraft()),
        from(localizedText("Routes:"), Credits::routes()),
        from(localizedText("Photos, each its photographer’s:"), Credits::photos()),
        from(localizedText("Map, cities and airports, which the program brings along:"), Credits::places()),
        localizedText("Free software under the MIT licence."),
    };
}

} // namespace

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(localizedText("About Skyvane"));
    auto* name = new QLabel{QStringLiteral("Skyvane")};
    name->setFont(TypeScale::display(font()));
    auto* version = new QLabel{localizedText("Version %1", {SKYVANE_VERSION})};
    TypeScale::makeQuiet(*version);
    auto* buttons = new QDialogButtonBox{QDialogButtonBox::Close};
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(28, 24, 28, 20);
    column->setSpacing(4);
    column->addWidget(name);
    column->addWidget(version);
    for (const QString& text : paragraphs()) {
        column->addSpacing(10);
        column->addWidget(paragraph(text));
    }
    column->addSpacing(16);
    column->addWidget(buttons);
    setMinimumWidth(420);
}

} // namespace skyvane
