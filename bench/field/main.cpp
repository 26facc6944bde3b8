// Prints what this project's hot paths and programs take beside what else would do the job, as a Markdown
// table.

#include "bench/field/desktop_session.h"
#include "bench/field/own_world.h"
#include "bench/field/rows.h"

#include <QGuiApplication>

#include <fstream>
#include <functional>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace {

using namespace skyvane::bench;

Programs programs()
{
    return {
        .launch = SKYVANE_BENCH_LAUNCH,
        .extension = SKYVANE_EXTENSION,
        .host = SKYVANE_HOST,
        .companion = SKYVANE_COMPANION,
        .desktopTurns = SKYVANE_BENCH_DESKTOP_TURNS,
        .skyTurns = SKYVANE_BENCH_SKY_TURNS,
        .paceTurns = SKYVANE_BENCH_PACE_TURNS,
        .hello = SKYVANE_BENCH_HELLO,
        .emptyWindow = SKYVANE_BENCH_EMPTY_WINDOW,
    };
}

struct Options {
    std::string only{}; ///< Of the sections' names, a part; empty for all.
    std::string jsonFile{};
};

std::optional<Options> optionsFrom(const std::vector<std::string>& words)
{
    Options options;
    for (std::size_t index = 0; index < words.size(); index += 2) {
        if (index + 1 == words.size() || (words[index] != "--only" && words[index] != "--json"))
            return std::nullopt;
        (words[index] == "--only" ? options.only : options.jsonFile) = words[index + 1];
    }
    return options;
}

struct Section {
    std::string name;
    std::function<Rows()> measure;
};

/// A section that fails says why and leaves its rows out.
bool addRows(const Section& section, Rows& rows)
{
    std::cerr << "Measuring: " << section.name << std::endl;
    try {
        for (Row& row : section.measure())
            rows.push_back(std::move(row));
        return true;
    } catch (const std::exception& error) {
        std::cerr << "skyvane-bench-field: " << error.what() << std::endl;
        return false;
    }
}

int measure(const Options& options, const OwnWorld& world)
{
    const Programs all = programs();
    const std::vector<Section> sections{
        {"refreshes", [&] { return refreshRows(all, world); }},
        {"timeline", [&] { return timelineRows(all); }},
        {"extension start", [&] { return extensionStartRows(all); }},
        {"host start", [&] { return hostStartRows(all); }},
        {"host at rest", [&] { return hostRestRows(all); }},
        {"widgets", widgetRows},
        {"companion start", [&] { return companionStartRows(all); }},
        {"companion at rest", [&] { return companionRestRows(all, world); }},
        {"hours on the sky page", [&] { return companionHourRows(all); }},
        {"a crowded sky", [&] { return companionPaceRows(all); }},
        {"decoding", decodeRows},
    };
    Rows rows;
    bool hasAll = true;
    for (const Section& section : sections) {
        if (section.name.find(options.only) != std::string::npos)
            hasAll = addRows(section, rows) && hasAll;
    }
    std::cout << machine() << "\n\n" << table(rows);
    if (!options.jsonFile.empty())
        std::ofstream{options.jsonFile} << json(rows);
    return hasAll ? 0 : 1;
}

} // namespace

int main(int argc, char* argv[])
{
    leaveDesktop();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::vector<std::string> words(argv + 1, argv + argc);
    const auto options = optionsFrom(words);
    if (!options) {
        std::cerr << "Usage: skyvane-bench-field [--only SECTION] [--json FILE]\n";
        return 2;
    }
    try {
        const OwnWorld world;
        const QGuiApplication application{argc, argv};
        return measure(*options, world);
    } catch (const std::exception& error) {
        std::cerr << "skyvane-bench-field: " << error.what() << "\n";
        return 1;
    }
}
