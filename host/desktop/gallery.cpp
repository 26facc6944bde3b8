#include "host/desktop/gallery.h"

#include "desk/text.h"
#include "host/desktop/sample_button.h"
#include "host/desktop/widget_menu.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QScrollArea>
#include <QVBoxLayout>

#include <utility>

namespace skyvane {

Gallery::Gallery(ExtensionProcess& extension, const FontMeasurer& fonts, const DesktopWay& way, Add add)
    : m_extension(extension), m_fonts(fonts), m_way(way), m_add(std::move(add)), m_content(new QWidget)
{
    setWindowTitle(localizedText("Add Widgets"));
    m_rows = new QVBoxLayout{m_content};
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidget(m_content);
    auto* layout = new QVBoxLayout{this};
    layout->setContentsMargins({});
    layout->addWidget(scroll);
    resize(640, 640);
}

void Gallery::showWidgets(const std::vector<WidgetInfo>& widgets)
{
    while (QLayoutItem* item = m_rows->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const WidgetInfo& widget : widgets)
        m_rows->addWidget(row(widget));
    m_rows->addStretch();
}

QWidget* Gallery::row(const WidgetInfo& widget)
{
    const QString name = toQString(widget.displayName);
    auto* row = new QWidget;
    auto* lines = new QVBoxLayout{row};
    auto* title = new QLabel{name};
    title->setTextFormat(Qt::PlainText);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    auto* description = new QLabel{toQString(widget.description)};
    description->setTextFormat(Qt::PlainText);
    description->setWordWrap(true);
    lines->addWidget(title);
    lines->addWidget(description);
    auto* samples = new QHBoxLayout;
    lines->addLayout(samples);
    for (const WidgetFamily family : widget.families) {
        const WidgetTarget target{.kind = widget.kind, .family = family};
        auto* button = new SampleButton{
            family, m_fonts, m_way, [this, target](const QRect& frame) { m_add(target, frame); }};
        button->setAccessibleName(name + QStringLiteral(", ") + familyTitle(family));
        connect(button, &QAbstractButton::clicked, this, [this, target] { m_add(target, std::nullopt); });
        m_extension.ask(Protocol::SnapshotCall{.params = {.target = target, .isPreview = true}},
            [button = QPointer<SampleButton>{button}](const std::optional<Protocol::OneEntry>& sample) {
                if (button && sample)
                    button->showSample(sample->entry);
            });
        samples->addWidget(button);
    }
    samples->addStretch();
    return row;
}

} // namespace skyvane
