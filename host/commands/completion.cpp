#include "host/commands/completion.h"

#include "host/commands/command_line.h"
#include "platform/text/printable.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace skyvane {

namespace {

using Words = std::vector<std::string>;

/// What has been typed of a command before the last word.
struct Typed {
    Arguments arguments{};
    const Option* awaitsValue = nullptr;
};

const Option* optionNamed(const Command& command, const std::string& word)
{
    const auto found = std::ranges::find(command.options, word, &Option::name);
    return found == command.options.end() ? nullptr : &*found;
}

Typed read(const Command& command, std::span<const std::string> words)
{
    Typed typed;
    for (const std::string& word : words) {
        const Option* const option = optionNamed(command, word);
        if (typed.awaitsValue != nullptr) {
            typed.awaitsValue = nullptr;
        } else if (option != nullptr) {
            typed.arguments.options.emplace(word, "");
            typed.awaitsValue = option->value ? option : nullptr;
        } else {
            typed.arguments.operands.push_back(word);
        }
    }
    return typed;
}

std::vector<Candidate> optionsLeft(const Command& command, const Typed& typed)
{
    std::vector<Candidate> left;
    for (const Option& option : command.options) {
        if (!typed.arguments.option(option.name))
            left.push_back({.word = std::string{option.name}, .meaning = std::string{option.help}});
    }
    return left;
}

/// After a command's whole name.
std::vector<Candidate> argumentsOf(
    const Command& command, std::span<const std::string> words, const CommandContext& context)
{
    const Typed typed = read(command, words.first(words.size() - 1));
    const std::size_t given = typed.arguments.operands.size();
    Candidates candidates = nullptr;
    if (typed.awaitsValue != nullptr)
        candidates = typed.awaitsValue->candidates;
    else if (words.back().starts_with('-') || given >= command.operands.size())
        return optionsLeft(command, typed);
    else
        candidates = command.operands[given].candidates;
    return candidates == nullptr ? std::vector<Candidate>{} : candidates(typed.arguments, context);
}

/// The next word of a command's name, where the words so far are the beginning of it. What starts with a dash
/// is the first word only of those who typed one.
std::optional<Candidate> nextOfName(const Command& command, const Words& name, const Words& words)
{
    const bool isMeant = words.size() > 1 || name[0].starts_with('-') == words[0].starts_with('-');
    if (words.size() != name.size() || !isMeant)
        return std::nullopt; // A shorter beginning is a command by itself.
    return Candidate{.word = name.back(), .meaning = std::string{command.meaning}};
}

std::vector<Candidate> candidatesFor(
    const std::vector<Command>& table, const Words& words, const CommandContext& context)
{
    std::vector<Candidate> found;
    for (const Command& command : table) {
        const Words name = nameWords(command);
        const auto typed = static_cast<std::ptrdiff_t>(std::min(name.size(), words.size() - 1));
        if (!std::equal(name.begin(), name.begin() + typed, words.begin()))
            continue;
        if (const auto next = nextOfName(command, name, words))
            found.push_back(*next);
        else if (words.size() > name.size())
            std::ranges::move(argumentsOf(command, std::span{words}.subspan(name.size()), context),
                std::back_inserter(found));
    }
    return found;
}

} // namespace

std::string completions(const std::vector<Command>& table, const Words& words, const CommandContext& context)
{
    std::string text;
    for (const Candidate& candidate : candidatesFor(table, words, context))
        text += Unicode::oneLine(candidate.word) + "\t" + Unicode::oneLine(candidate.meaning) + "\n";
    return text;
}

} // namespace skyvane
