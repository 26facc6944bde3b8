#include "host/commands/render_command.h"

#include "paint/render.h"

#include <QBuffer>
#include <QSaveFile>

#include <algorithm>

namespace skyvane {

namespace {

WidgetInfo chosenWidget(const RenderWords& words, const std::vector<WidgetInfo>& widgets)
{
    std::string known;
    for (const WidgetInfo& widget : widgets) {
        if (widget.kind == words.kind || widget.shortName() == words.kind)
            return widget;
        known.append(known.empty() ? "" : ", ").append(widget.shortName());
    }
    throw UsageError{"unknown widget \"" + words.kind + "\": known are " + known};
}

void requireFamily(const WidgetInfo& widget, WidgetFamily family)
{
    if (std::find(widget.families.begin(), widget.families.end(), family) != widget.families.end())
        return;
    std::string supported;
    for (const WidgetFamily one : widget.families)
        supported.append(supported.empty() ? "" : ", ").append(WidgetContainer::name(one));
    throw UsageError{"\"" + widget.shortName() + "\" has no family \""
        + std::string{WidgetContainer::name(family)} + "\", only " + supported};
}

WidgetEntry currentEntry(const RenderWords& words, const WidgetInfo& widget, ExtensionClient& extension)
{
    const WidgetTarget target{.kind = widget.kind, .family = words.family};
    if (words.isSample)
        return extension.ask(Protocol::SnapshotCall{.params = {.target = target, .isPreview = true}}).entry;
    WidgetTimeline timeline = extension.ask(Protocol::TimelineCall{.params = target});
    if (timeline.entries.empty())
        throw ExtensionError{"the widget extension answered a timeline without entries"};
    return std::move(timeline.entries.front());
}

std::filesystem::path defaultOutput(const WidgetInfo& widget, WidgetFamily family)
{
    std::string name = widget.shortName() + "-" + std::string{WidgetContainer::name(family)} + ".png";
    std::replace(name.begin(), name.end(), '/', '-');
    return name;
}

QByteArray png(const QImage& image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

QByteArray picture(const RenderWords& words, const WidgetInfo& widget, const WidgetEntry& entry)
{
    const FontMeasurer fonts;
    const DisplayList list = WidgetContainer::layout(entry.view, words.family, fonts);
    if (words.format == PictureFormat::png)
        return png(renderImage(list, entry.background, words.scale, fonts));
    const SvgLabels labels{
        .title = QString::fromStdString(widget.displayName),
        .description = QString::fromStdString(widget.description),
    };
    return renderSvg(list, entry.background, labels, fonts);
}

void write(const std::filesystem::path& path, const QByteArray& bytes)
{
    QSaveFile file{QString::fromStdString(path.string())};
    const bool isWritten
        = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    if (!isWritten)
        throw OutputError{"cannot write " + path.string() + ": " + file.errorString().toStdString()};
}

} // namespace

std::filesystem::path renderWidget(const RenderWords& words, ExtensionClient& extension)
{
    const WidgetInfo widget = chosenWidget(words, extension.ask(Protocol::ListCall{}).widgets);
    requireFamily(widget, words.family);
    const WidgetEntry entry = currentEntry(words, widget, extension);
    std::filesystem::path output = words.output.value_or(defaultOutput(widget, words.family));
    write(output, picture(words, widget, entry));
    return output;
}

} // namespace skyvane
