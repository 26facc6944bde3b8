#include "companion/app/command_line.h"

#include "desk/help_rows.h"
#include "platform/text/printable.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace skyvane {

namespace {

Printed help();

Printed version()
{
    return {.text = "skyvane " SKYVANE_VERSION "\n", .isError = false};
}

/// One option of the program: help and parsing are made of it.
struct Option {
    std::string_view name;
    std::string_view help;
    /// What it switches on, or prints instead of a start.
    std::variant<bool CommandLine::*, Printed (*)()> meaning;
    std::string_view shortName = name;
};

constexpr std::array options{
    Option{.name = "--settings", .help = "open the settings", .meaning = &CommandLine::showsSettings},
    Option{
        .name = "--alerts",
        .help = "open the page on which you choose what to be told of",
        .meaning = &CommandLine::showsAlerts,
    },
    Option{
        .name = "--service",
        .help = "start without a window and wait to be asked over D-Bus",
        .meaning = &CommandLine::isService,
    },
    Option{.name = "--version", .help = "print the version", .meaning = version},
    Option{.name = "--help", .help = "print this text", .meaning = help, .shortName = "-h"},
};

constexpr std::string_view synopsis = "usage: skyvane [--settings | --alerts] [LINK]\n";

Printed help()
{
    std::vector<HelpRow> rows{{
        .name = "LINK",
        .help = "skyvane://open or skyvane://aircraft/HEX, which names an aircraft by its ICAO address",
    }};
    for (const Option& option : options)
        rows.push_back({.name = option.name, .help = option.help});
    return {
        .text = std::string{synopsis} + R"(
Shows the aircraft around your home, one of them in detail, and the settings of the desktop widgets.

)" + helpRows(rows, 2),
        .isError = false,
    };
}

Printed refusal(const std::string& problem)
{
    return {
        .text = "skyvane: " + Unicode::oneLine(problem, Unicode::longestLine) + "\n" + std::string{synopsis},
        .isError = true,
    };
}

const Option* optionCalled(std::string_view word)
{
    const auto found = std::ranges::find_if(
        options, [&](const Option& option) { return word == option.name || word == option.shortName; });
    return found == options.end() ? nullptr : &*found;
}

} // namespace

std::variant<CommandLine, Printed> readCommandLine(const std::vector<std::string>& words)
{
    CommandLine line;
    bool areOptionsOver = false;
    for (const std::string& word : words) {
        if (areOptionsOver || !word.starts_with('-')) {
            if (line.link)
                return refusal("one link at a time, and \"" + word + "\" is a second one");
            line.link = word;
        } else if (word == "--") {
            areOptionsOver = true;
        } else if (const Option* const option = optionCalled(word); option == nullptr) {
            return refusal("unknown option \"" + word + "\"");
        } else if (const auto* print = std::get_if<Printed (*)()>(&option->meaning)) {
            return (*print)();
        } else {
            line.*std::get<bool CommandLine::*>(option->meaning) = true;
        }
    }
    if (line.link && (line.showsSettings || line.showsAlerts || line.isService))
        return refusal("\"" + *line.link + "\" goes with no option");
    return line;
}

} // namespace skyvane
