#include "host/commands/status_command.h"

#include "host/extension/protection.h"
#include "platform/text/printable.h"

#include <ostream>
#include <string>

namespace skyvane {

namespace {

std::string wordsForMemory(const Protection& protection)
{
    constexpr std::uint64_t mebibyte = 1 << 20;
    return protection.mostMemory ? "at most " + std::to_string(*protection.mostMemory / mebibyte) + " MiB"
                                 : "not bounded";
}

std::string wordsForFiles(const Protection& protection)
{
    return protection.hasCallFilter && protection.fileAccessVersion > 0
        ? "only what it needs (Landlock " + std::to_string(protection.fileAccessVersion) + ")"
        : "all that you may read (this kernel lacks Landlock, or the filter)";
}

void status(const Arguments&, const CommandContext& context)
{
    ExtensionClient extension{context.extension};
    extension.ask(Protocol::ListCall{}); // From then on it is as confined as this kernel lets it be.
    const Protection protection = Protection::of(extension.processId());
    context.out << "extension\t" << Unicode::oneLine(context.extension.path.string()) << "\nsystem calls\t"
                << (protection.hasCallFilter ? "only those it needs" : "all (this kernel has no filter)")
                << "\nfiles\t" << wordsForFiles(protection) << "\nconnections\t"
                << (protection.hasCallFilter && protection.hasConnector
                           ? "made for it, to the sources or the proxy alone"
                           : "to anybody")
                << "\nprivileges\t" << (protection.hasNoNewPrivileges ? "never more" : "not bounded")
                << "\nmemory\t" << wordsForMemory(protection) << "\n";
}

} // namespace

Command statusCommand()
{
    return {
        .name = "status",
        .help = "What protects the desktop from what strangers send, on this machine.",
        .meaning = "What protects this machine",
        .run = status,
    };
}

} // namespace skyvane
