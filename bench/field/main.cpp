// Prints what this project's hot paths and programs take beside what else would do the job, as a Markdown
// table.

#include "bench/field/own_world.h"
#include "bench/field/refresh.h"
#include "bench/field/rows.h"

#include <QGuiApplication>

#include <fstream>
#include <functional>
#include <iostream>

namespace {

using namespace skyvane::bench;

Programs programs()
{
    return {
        .launch = SKYVANE_BENCH_LAUNCH,
        .extension = SKYVANE_EXTENSION,
        .host = SKYVANE_HOST,
        .hello = SKYVANE_BENCH_HELLO,
        .emptyWindow = SKYVANE_BENCH_EMPTY_WINDOW,
        .refresher = "/proc/self/exe",
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

int measure(const Options& options)
{
    const Programs all = programs();
    const std::vector<Section> sections{
        {"decoding", decodeRows},
        {"sorting", sortRows},
        {"widgets", widgetRows},
        {"timeline", [&] { return timelineRows(all); }},
        {"extension start", [&] { return startRows(all); }},
        {"refreshes", [&] { return refreshRows(all); }},
        {"host start", [&] { return coldStartRows(all, skyvane::test::XSession{}); }},
        {"host at rest", [&] { return idleRows(all, skyvane::test::XSession{}); }},
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
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (words.size() == 2 && words[0] == "refresh") {
        const QGuiApplication application{argc, argv};
        refreshAgainAndAgain(words[1], std::cout);
        return 0;
    }
    const auto options = optionsFrom(words);
    if (!options) {
        std::cerr << "Usage: skyvane-bench-field [--only SECTION] [--json FILE]\n";
        return 2;
    }
    try {
        const OwnWorld world;
        const QGuiApplication application{argc, argv};
        return measure(*options);
    } catch (const std::exception& error) {
        std::cerr << "skyvane-bench-field: " << error.what() << "\n";
        return 1;
    }
}
