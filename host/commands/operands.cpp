#include "host/commands/operands.h"

#include "host/service/ask_host.h"
#include "ui/layout/widget_container.h"

#include <charconv>
#include <sstream>

namespace skyvane {

namespace {

std::vector<Candidate> kinds(const Arguments&, const CommandContext& context)
{
    std::vector<Candidate> kinds;
    const Protocol::WidgetList list = ExtensionClient{context.extension}.ask(Protocol::ListCall{});
    for (const WidgetInfo& widget : list.widgets)
        kinds.push_back({.word = widget.shortName(), .meaning = widget.displayName});
    return kinds;
}

/// Of the kind that was typed before.
std::vector<Candidate> families(const Arguments& typed, const CommandContext& context)
{
    const std::string& kind = typed.operands.at(0);
    std::vector<Candidate> families;
    const Protocol::WidgetList list = ExtensionClient{context.extension}.ask(Protocol::ListCall{});
    for (const WidgetInfo& widget : list.widgets) {
        if (widget.kind != kind && widget.shortName() != kind)
            continue;
        for (const WidgetFamily family : widget.families)
            families.push_back({.word = std::string{WidgetContainer::name(family)}, .meaning = ""});
    }
    return families;
}

std::vector<Candidate> placedNumbers(const Arguments&, const CommandContext&)
{
    std::istringstream lines{askHost(QDBusConnection::sessionBus(), &HostInterface::ListPlaced)};
    std::vector<Candidate> numbers;
    for (std::string number, meaning; std::getline(lines, number, '\t') && std::getline(lines, meaning);)
        numbers.push_back({.word = number, .meaning = meaning});
    return numbers;
}

std::vector<Candidate> screens(const Arguments&, const CommandContext&)
{
    std::istringstream lines{askHost(QDBusConnection::sessionBus(), &HostInterface::ListScreens)};
    std::vector<Candidate> screens;
    for (std::string name; std::getline(lines, name);)
        screens.push_back({.word = name, .meaning = ""});
    return screens;
}

} // namespace

Operand kindOperand()
{
    return {
        .name = "KIND",
        .noun = "a kind",
        .help = "as listed, or its last component",
        .candidates = kinds,
    };
}

Operand familyOperand()
{
    return {
        .name = "FAMILY",
        .noun = "a family",
        .help = "small, medium or large",
        .check = [](const std::string& word) { familyNamed(word); },
        .candidates = families,
    };
}

Operand numberOperand()
{
    return {
        .name = "NUMBER",
        .noun = "a widget's number",
        .check = [](const std::string& word) { placedNumber(word); },
        .candidates = placedNumbers,
    };
}

Operand screenOperand()
{
    return {
        .name = "SCREEN",
        .noun = "a screen",
        .help = "as listed",
        .candidates = screens,
    };
}

WidgetFamily familyNamed(const std::string& word)
{
    if (const auto family = WidgetContainer::named(word))
        return *family;
    throw UsageError{"unknown family \"" + word + "\": known are small, medium, large"};
}

int placedNumber(const std::string& word)
{
    int number = 0;
    const char* const last = word.data() + word.size();
    const auto [end, error] = std::from_chars(word.data(), last, number);
    if (error != std::errc{} || end != last || number < 1)
        throw UsageError{"a widget's number is that of list --placed, not \"" + word + "\""};
    return number;
}

} // namespace skyvane
