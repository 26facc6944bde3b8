#include "host/commands/render_command.h"

#include "host/commands/operands.h"
#include "host/commands/turn_to_ask.h"
#include "paint/to_qt.h"
#include "platform/text/printable.h"
#include "ui/layout/widget_container.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QSaveFile>

#include <algorithm>
#include <charconv>
#include <ostream>

namespace skyvane {

namespace {

constexpr double largestScale = 8;

double scale(const std::string& word)
{
    double value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc{} || end != word.data() + word.size() || !(value > 0 && value <= largestScale))
        throw UsageError{"the scale is a number above 0 and up to 8, not \"" + word + "\""};
    return value;
}

PictureFormat format(const std::filesystem::path& output)
{
    const QString ending = QString::fromStdString(output.extension().string()).toLower();
    if (ending == QStringLiteral(".png"))
        return PictureFormat::png;
    if (ending == QStringLiteral(".svg"))
        return PictureFormat::svg;
    throw UsageError{"the output's name must end in .png or .svg: \"" + output.string() + "\""};
}

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

WidgetEntry currentEntry(const RenderWords& words, const WidgetInfo& widget, ExtensionClient& extension,
    const std::filesystem::path& turnFile)
{
    const WidgetTarget target{.kind = widget.kind, .family = words.family};
    if (words.isSample)
        return extension.ask(Protocol::SnapshotCall{.params = {.target = target, .isPreview = true}}).entry;
    const auto turn = turnToAsk(turnFile);
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
    const TextDirection direction = fromQt(QGuiApplication::layoutDirection());
    const DisplayList list = WidgetContainer::layout(entry.view, words.family, fonts, direction);
    if (words.format == PictureFormat::png)
        return png(renderImage(list, entry.background, words.scale, fonts, words.corners));
    const SvgLabels labels{
        .title = QString::fromStdString(widget.displayName),
        .description = QString::fromStdString(widget.description),
    };
    return renderSvg(list, entry.background, labels, fonts, words.corners);
}

void write(const std::filesystem::path& path, const QByteArray& bytes)
{
    QSaveFile file{QString::fromStdString(path.string())};
    const bool isWritten
        = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    if (!isWritten)
        throw OutputError{"cannot write " + path.string() + ": " + file.errorString().toStdString()};
}

/// Writes the picture, whole or not at all, and returns its file.
std::filesystem::path render(
    const RenderWords& words, ExtensionClient& extension, const std::filesystem::path& turn)
{
    const WidgetInfo widget = chosenWidget(words, extension.ask(Protocol::ListCall{}).widgets);
    requireFamily(widget, words.family);
    const WidgetEntry entry = currentEntry(words, widget, extension, turn);
    std::filesystem::path output = words.output.value_or(defaultOutput(widget, words.family));
    write(output, picture(words, widget, entry));
    return output;
}

void run(const Arguments& arguments, const CommandContext& context)
{
    const RenderWords words = RenderWords::read(arguments);
    ExtensionClient extension{context.extension};
    context.out << Unicode::printable(render(words, extension, context.turn).string()) << "\n";
}

std::vector<Candidate> pictureNames(const Arguments&, const CommandContext&)
{
    return {{.word = "*.png", .meaning = ""}, {.word = "*.svg", .meaning = ""}};
}

std::vector<Candidate> usualScales(const Arguments&, const CommandContext&)
{
    std::vector<Candidate> scales;
    for (const char* word : {"1", "2", "3", "4"})
        scales.push_back({.word = word, .meaning = ""});
    return scales;
}

} // namespace

RenderWords RenderWords::read(const Arguments& arguments)
{
    const auto output = arguments.option("--output");
    return {
        .kind = arguments.operands[0],
        .family = familyNamed(arguments.operands[1]),
        .output = output,
        .format = output ? skyvane::format(*output) : PictureFormat::png,
        .scale = skyvane::scale(arguments.option("--scale").value_or("1")),
        .isSample = arguments.option("--sample").has_value(),
        .corners = arguments.option("--square") ? Corners::square : Corners::round,
    };
}

Command renderCommand()
{
    return {
        .name = "render",
        .operands = {kindOperand(), familyOperand()},
        .options = {
            {
                .name = "--output",
                .value = "FILE",
                .help = "a name that ends in .png or .svg (default: KIND-FAMILY.png)",
                .candidates = pictureNames,
            },
            {
                .name = "--scale",
                .value = "N",
                .help = "pixels a point of a PNG, above 0 and up to 8 (default: 1)",
                .check = [](const std::string& word) { scale(word); },
                .candidates = usualScales,
            },
            {
                .name = "--sample",
                .help = "the built-in sample instead of live data",
            },
            {
                .name = "--square",
                .help = "without the round corners that it has on the desktop",
            },
        },
        .help = "Writes a widget as a picture and prints the file's name.",
        .meaning = "Write a widget as a picture",
        .run = run,
    };
}

} // namespace skyvane
