#include "host/commands/run_command.h"

#include "host/commands/command_line.h"
#include "host/commands/completion.h"
#include "host/commands/table.h"
#include "platform/text/printable.h"

#include <ostream>

namespace skyvane {

namespace {

int fail(int status, const std::exception& reason, std::ostream& error)
{
    error << "skyvane-host: " << Unicode::oneLine(reason.what(), Unicode::longestLine) << "\n";
    return status;
}

} // namespace

int runCommand(const std::vector<std::string>& words, const ExtensionProgram& extension, Streams streams,
    const std::filesystem::path& turn)
{
    if (words.empty()) {
        streams.error << usage(commands());
        return 2;
    }
    const CommandContext context{.extension = extension, .out = streams.out, .turn = turn};
    try {
        if (words.size() > 1 && words[0] == "--complete") { // For the shells' completions, not for people.
            streams.out << completions(commands(), {words.begin() + 1, words.end()}, context);
            return 0;
        }
        const CommandCall call = parseCommandLine(commands(), words);
        call.command.run(call.arguments, context);
        return 0;
    } catch (const UsageError& error) {
        return fail(2, error, streams.error);
    } catch (const std::exception& error) {
        return fail(1, error, streams.error);
    }
}

} // namespace skyvane
