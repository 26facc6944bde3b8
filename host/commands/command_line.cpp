#include "host/commands/command_line.h"

#include "desk/help_rows.h"

#include <algorithm>
#include <iterator>
#include <sstream>

namespace skyvane {

namespace {

bool isCalled(const Command& command, const std::vector<std::string>& words)
{
    const std::vector<std::string> name = nameWords(command);
    return words.size() >= name.size() && std::equal(name.begin(), name.end(), words.begin());
}

/// Sorts the words after a command's name. Where a command has no options, each word is an operand: a
/// number below zero is told that it is none.
class ArgumentParser {
public:
    ArgumentParser(const Command& command, std::vector<std::string> words)
        : m_command(command), m_words(std::move(words))
    {
    }

    Arguments parse()
    {
        while (m_next < m_words.size()) {
            const std::string& word = m_words[m_next++];
            if (m_command.options.empty() || !word.starts_with('-'))
                m_arguments.operands.push_back(word);
            else
                readOption(word);
        }
        return m_arguments;
    }

private:
    void readOption(const std::string& word)
    {
        for (const Option& option : m_command.options) {
            const auto value = valueOf(option, word);
            if (!value)
                continue;
            if (option.check != nullptr)
                option.check(*value);
            m_arguments.options.insert_or_assign(std::string{option.name}, *value);
            return;
        }
        throw UsageError{"unknown option \"" + word + "\""};
    }

    /// The option's value, from the same word after "=" or from the next, empty for a switch; absent when
    /// `word` is another option.
    std::optional<std::string> valueOf(const Option& option, const std::string& word)
    {
        if (option.value && word.starts_with(std::string{option.name} + "="))
            return word.substr(option.name.size() + 1);
        if (word != option.name)
            return std::nullopt;
        if (!option.value)
            return "";
        if (m_next == m_words.size())
            throw UsageError{word + " needs a value"};
        return m_words[m_next++];
    }

    const Command& m_command;
    std::vector<std::string> m_words;
    std::size_t m_next = 0;
    Arguments m_arguments;
};

void requireOperands(const Command& command, const std::string& firstWord, const Arguments& arguments)
{
    if (arguments.operands.size() == command.operands.size())
        return;
    if (command.operands.empty())
        throw UsageError{"\"" + firstWord + "\" takes no more words"};
    std::string nouns;
    for (const Operand& operand : command.operands)
        nouns.append(nouns.empty() ? "" : " and ").append(operand.noun);
    throw UsageError{firstWord + " takes " + nouns + ", see skyvane-host --help"};
}

std::string synopsis(const Command& command)
{
    std::string text{command.name};
    for (const Operand& operand : command.operands)
        text.append(" ").append(operand.name);
    for (const Option& option : command.options) {
        text.append(" [").append(option.name);
        if (option.value)
            text.append(" ").append(*option.value);
        text += "]";
    }
    return text;
}

std::vector<HelpRow> rows(const Command& command)
{
    std::vector<HelpRow> rows;
    for (const Operand& operand : command.operands) {
        if (operand.help)
            rows.push_back({.name = operand.name, .help = *operand.help});
    }
    for (const Option& option : command.options)
        rows.push_back({.name = option.name, .help = option.help});
    return rows;
}

} // namespace

std::optional<std::string> Arguments::option(std::string_view name) const
{
    const auto found = options.find(name);
    return found == options.end() ? std::nullopt : std::optional{found->second};
}

std::vector<std::string> nameWords(const Command& command)
{
    std::istringstream words{std::string{command.name}};
    return {std::istream_iterator<std::string>{words}, {}};
}

CommandCall parseCommandLine(const std::vector<Command>& table, const std::vector<std::string>& words)
{
    const auto command
        = std::ranges::find_if(table, [&](const Command& entry) { return isCalled(entry, words); });
    if (command == table.end())
        throw UsageError{"unknown command \"" + words[0] + "\", see skyvane-host --help"};
    const auto nameSize = static_cast<std::ptrdiff_t>(nameWords(*command).size());
    CommandCall call{*command, ArgumentParser{*command, {words.begin() + nameSize, words.end()}}.parse()};
    requireOperands(*command, words[0], call.arguments);
    for (std::size_t index = 0; index < command->operands.size(); ++index) {
        if (const WordCheck check = command->operands[index].check)
            check(call.arguments.operands[index]);
    }
    return call;
}

std::string usage(const std::vector<Command>& table)
{
    std::string text = R"(Usage:
  skyvane-host
      Shows the widgets on the desktop; where they are shown already, the gallery.
)";
    for (const Command& command : table) {
        text += "  skyvane-host " + synopsis(command) + "\n";
        if (command.help)
            text.append(6, ' ').append(*command.help).append("\n");
        text += helpRows(rows(command), 6);
    }
    return text;
}

} // namespace skyvane
