#include "companion/window/about_dialog.h"

#include "companion/look/link_label.h"
#include "companion/look/sources.h"
#include "companion/look/type_scale.h"
#include "desk/text.h"
#include "platform/text/localized.h"

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
    const auto from = [](const std::string& words, const QString& links) {
        return toQString(words) + QStringLiteral("<br>") + links;
    };
    return {
        toQString(localized("The aircraft around your home, on your desktop.")),
        from(localized("Aircraft, from the receivers of volunteers:"),
            linkTo(Source::firstAggregator) + QStringLiteral(" · ") + linkTo(Source::secondAggregator)),
        from(localized("Routes:"), linkTo(Source::routeDatabase)),
        from(localized("Photos, each its photographer’s:"), linkTo(Source::photoService)),
        toQString(localized("Free software under the MIT licence.")),
    };
}

} // namespace

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent)
{
    setWindowTitle(toQString(localized("About Skyvane")));
    auto* name = new QLabel{QStringLiteral("Skyvane")};
    name->setFont(TypeScale::display(font()));
    auto* version = new QLabel{toQString(localized("Version %1")).arg(QStringLiteral(SKYVANE_VERSION))};
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
