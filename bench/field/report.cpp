#include "bench/field/report.h"

#include "platform/text/format.h"

#include <nlohmann/json.hpp>

#include <sys/utsname.h>

#include <cmath>
#include <fstream>
#include <thread>

namespace skyvane::bench {

namespace {

/// Three digits, whole numbers whole.
std::string figure(double value)
{
    const double size = std::abs(value);
    const bool isWhole = value == std::trunc(value);
    return Format::fixed(value, isWhole || size >= 100 ? 0 : size >= 10 ? 1 : 2);
}

std::string withUnit(double value, const std::string& unit)
{
    return figure(value) + (unit.empty() ? "" : " " + unit);
}

std::string targetText(const Row& row)
{
    if (!row.target)
        return "";
    const std::string limit
        = row.target->isRatio ? "× " + figure(row.target->most) : withUnit(row.target->most, row.unit);
    return "≤ " + limit + (row.isMet().value_or(false) ? "" : " **missed**");
}

std::string processor()
{
    std::ifstream file{"/proc/cpuinfo"};
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("model name"))
            return line.substr(line.find(':') + 2);
    }
    return "unknown processor";
}

template <class Value>
nlohmann::ordered_json orNull(const std::optional<Value>& value)
{
    return value ? nlohmann::ordered_json(*value) : nlohmann::ordered_json(nullptr);
}

nlohmann::ordered_json targetJSON(const std::optional<Target>& target)
{
    if (!target)
        return nullptr;
    return {{"most", target->most}, {"isRatio", target->isRatio}};
}

} // namespace

std::optional<double> Row::ratio() const
{
    if (!theirs || *theirs == 0)
        return std::nullopt;
    return ours / *theirs;
}

std::optional<bool> Row::isMet() const
{
    if (!target)
        return std::nullopt;
    const auto value = target->isRatio ? ratio() : ours;
    return value && *value <= target->most;
}

std::string table(const std::vector<Row>& rows)
{
    std::string text = "| what | Skyvane | beside | | ratio | target |\n|---|--:|---|--:|--:|---|\n";
    for (const Row& row : rows) {
        const auto ratio = row.ratio();
        text += "| " + row.what + " | " + withUnit(row.ours, row.unit) + " | " + row.peer + " | "
            + (row.theirs ? withUnit(*row.theirs, row.unit) : "") + " | " + (ratio ? figure(*ratio) : "")
            + " | " + targetText(row) + " |\n";
    }
    return text;
}

std::string machine()
{
    utsname system{};
    uname(&system);
    return processor() + ", " + std::to_string(std::thread::hardware_concurrency()) + " cores, "
        + system.sysname + " " + system.release + ", GCC " + __VERSION__;
}

std::string json(const std::vector<Row>& rows)
{
    auto list = nlohmann::ordered_json::array();
    for (const Row& row : rows) {
        list.push_back({
            {"what", row.what},
            {"unit", row.unit},
            {"ours", row.ours},
            {"peer", row.peer},
            {"theirs", orNull(row.theirs)},
            {"ratio", orNull(row.ratio())},
            {"target", targetJSON(row.target)},
            {"isMet", orNull(row.isMet())},
        });
    }
    return nlohmann::ordered_json{{"machine", machine()}, {"rows", std::move(list)}}.dump(2) + '\n';
}

} // namespace skyvane::bench
