#include "companion/window/shortcuts_dialog.h"

#include "companion/look/type_scale.h"
#include "desk/text.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <vector>

namespace skyvane {

namespace {

struct Row {
    QString what;
    QList<QKeySequence> keys;
};

/// Those of the list and of the scope.
std::vector<Row> rowsOfSky()
{
    return {
        {localizedText("Next aircraft, previous aircraft"), {Qt::Key_Down, Qt::Key_Up}},
        {localizedText("Open the aircraft"), {Qt::Key_Return}},
        {localizedText("Copy the aircraft’s row"), {QKeySequence::Copy}},
        {localizedText("Put it on the watch list, or take it off"), {Qt::CTRL | Qt::Key_D}},
    };
}

QString textOf(const QList<QKeySequence>& keys)
{
    QStringList texts;
    for (const QKeySequence& key : keys)
        texts += key.toString(QKeySequence::NativeText);
    return texts.join(QStringLiteral(", "));
}

} // namespace

ShortcutsDialog::ShortcutsDialog(const QList<QAction*>& actions, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(localizedText("Keyboard Shortcuts"));
    std::vector<Row> rows = rowsOfSky();
    for (const QAction* action : actions) {
        if (!action->shortcuts().isEmpty())
            rows.push_back({action->text().remove(QStringLiteral("…")), action->shortcuts()});
    }
    auto* list = new QFormLayout;
    list->setHorizontalSpacing(28);
    list->setVerticalSpacing(8);
    for (const auto& [what, keys] : rows) {
        auto* text = new QLabel{textOf(keys)};
        text->setFont(TypeScale::strong(font()));
        text->setAccessibleName(what + QStringLiteral(": ") + text->text());
        list->addRow(what, text);
    }
    auto* buttons = new QDialogButtonBox{QDialogButtonBox::Close};
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(28, 24, 28, 20);
    column->addLayout(list);
    column->addSpacing(16);
    column->addWidget(buttons);
}

} // namespace skyvane
