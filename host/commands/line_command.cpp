#include "host/commands/line_command.h"

#include "host/commands/line_follower.h"
#include "host/commands/line_format.h"
#include "host/commands/reader_watch.h"
#include "host/commands/turn_to_ask.h"
#include "host/extension/schedule.h"
#include "platform/files/configuration_file.h"
#include "platform/text/localized.h"
#include "platform/text/printable.h"

#include <QEventLoop>

#include <nlohmann/json.hpp>

#include <unistd.h>

#include <algorithm>
#include <ostream>

namespace skyvane {

namespace {

const WidgetTarget nearestTarget{.kind = "org.skyvane.widgets.nearest", .family = WidgetFamily::small};
const WidgetTarget boardTarget{.kind = "org.skyvane.widgets.skyboard", .family = WidgetFamily::large};

struct Sky {
    NearestWords words;
    Date again; ///< When to ask for the next.
};

Sky sample(ExtensionClient& extension)
{
    const auto entryOf = [&](const WidgetTarget& target) {
        return extension.ask(Protocol::SnapshotCall{.params = {.target = target, .isPreview = true}}).entry;
    };
    return {
        .words = NearestWords::read(entryOf(nearestTarget), entryOf(boardTarget)),
        .again = Clock::now() + Schedule::longestRetry,
    };
}

Sky live(ExtensionClient& extension)
{
    const Protocol::TimelinesCall call{.params = {.widgets = {nearestTarget, boardTarget}}};
    const auto timelines = extension.ask(call).timelines;
    const Date now = Clock::now();
    const WidgetEntry* const nearest = timelines.size() == 2 ? entryAt(timelines[0], now) : nullptr;
    const WidgetEntry* const board = timelines.size() == 2 ? entryAt(timelines[1], now) : nullptr;
    if (nearest == nullptr || board == nullptr)
        throw ExtensionError{"the widget extension answered a timeline without entries"};
    return {
        .words = NearestWords::read(*nearest, *board),
        .again = std::min(timelines[0].reload.date, timelines[1].reload.date),
    };
}

/// An extension for each question: between two of them nothing stays.
Sky ask(const CommandContext& context, bool isSample)
{
    if (isSample) {
        ExtensionClient extension{context.extension};
        return sample(extension);
    }
    const auto turn = turnToAsk(context.turn);
    ExtensionClient extension{context.extension};
    return live(extension);
}

/// What a bar shows: the text, more below the pointer, and a name that a style goes by.
struct BarText {
    std::string text;
    std::string tooltip;
    std::string style;
};

BarText barText(const NearestWords& words, const LineFormat& format)
{
    std::string tooltip;
    for (const std::string& line : words.lines)
        tooltip.append(tooltip.empty() ? "" : "\n").append(line);
    switch (words.sky) {
    case NearestWords::Sky::aircraft:
        return {.text = format.fill(words), .tooltip = std::move(tooltip), .style = "aircraft"};
    case NearestWords::Sky::quiet:
        return {.text = words.lines.front(), .tooltip = std::move(tooltip), .style = "quiet"};
    default:
        return {.text = words.lines.front(), .tooltip = std::move(tooltip), .style = "no-home"};
    }
}

BarText failure(const ExtensionError& error)
{
    return {.text = localized("No answer"), .tooltip = Unicode::oneLine(error.what()), .style = "failure"};
}

std::string lineOf(const BarText& text, bool isJSON)
{
    if (!isJSON)
        return text.text;
    const nlohmann::ordered_json json{{"text", text.text}, {"tooltip", text.tooltip}, {"class", text.style}};
    return json.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

void follow(const LineFollower::Ask& ask, const LineFollower::Print& print)
{
    QEventLoop loop;
    LineFollower follower{ask, print, Files::configurationFile()};
    const ReaderWatch reader{STDOUT_FILENO, [&loop] { loop.quit(); }};
    follower.lookAtClock();
    loop.exec();
}

void run(const Arguments& arguments, const CommandContext& context)
{
    const LineFormat format
        = LineFormat::parse(arguments.option("--format").value_or(std::string{LineFormat::standard}));
    const bool isJSON = arguments.option("--json").has_value();
    const bool isSample = arguments.option("--sample").has_value();
    const auto print = [&](const std::string& line) { context.out << line << "\n" << std::flush; };
    const auto lineOfSky = [&](const Sky& sky) { return lineOf(barText(sky.words, format), isJSON); };
    const auto lineOfFailure = [&](const ExtensionError& error) { return lineOf(failure(error), isJSON); };

    if (arguments.option("--follow")) {
        return follow(
            [&]() -> LineNews {
                try {
                    const Sky sky = ask(context, isSample);
                    return {.line = lineOfSky(sky), .again = sky.again};
                } catch (const ExtensionError& error) {
                    return {.line = lineOfFailure(error)};
                }
            },
            print);
    }
    try {
        print(lineOfSky(ask(context, isSample)));
    } catch (const ExtensionError& error) {
        print(lineOfFailure(error)); // A bar shows this, and not the error.
        throw;
    }
}

} // namespace

Command lineCommand()
{
    return {
        .name = "line",
        .options = {
            {
                .name = "--format",
                .value = "TEXT",
                .help = "with {callsign}, {distance} and more, see skyvane-host(1)",
                .check = [](const std::string& word) { LineFormat::parse(word); },
            },
            {
                .name = "--json",
                .help = "text, tooltip and class, as Waybar reads them",
            },
            {
                .name = "--follow",
                .help = "stays, and prints a line whenever it changes",
            },
            {
                .name = "--sample",
                .help = "the built-in sample instead of live data",
            },
        },
        .help = "Prints the nearest aircraft in one line, for status bars.",
        .meaning = "The nearest aircraft in one line",
        .run = run,
    };
}

} // namespace skyvane
