#include "host/commands/run_command.h"

#include "desk/one_line.h"
#include "host/commands/command_line.h"
#include "host/commands/list_command.h"
#include "host/commands/render_command.h"
#include "host/service/ask_host.h"

#include <ostream>

namespace skyvane {

namespace {

struct Runner {
    const ExtensionProgram& program;
    std::ostream& out;

    void operator()(const RenderWords& words) const
    {
        ExtensionClient extension{program};
        out << renderWidget(words, extension).string() << "\n";
    }

    void operator()(const ListWords&) const
    {
        out << listText(ExtensionClient{program}.ask(Protocol::ListCall{}).widgets);
    }
    void operator()(const PlacedWords&) const { tell(&HostInterface::ListPlaced); }
    void operator()(const AddWords& words) const
    {
        tell([&](HostInterface& host) {
            return host.Add(
                QString::fromStdString(words.kind), QString::fromUtf8(WidgetContainer::name(words.family)));
        });
    }
    void operator()(const RemoveWords& words) const
    {
        tell([&](HostInterface& host) { return host.Remove(words.widget); });
    }
    void operator()(const RefreshWords&) const { tell(&HostInterface::Refresh); }
    void operator()(const QuitWords&) const { tell(&HostInterface::Quit); }
    void operator()(const HelpWords&) const { out << usage(); }
    void operator()(const VersionWords&) const { out << "skyvane-host " SKYVANE_VERSION "\n"; }

private:
    void tell(const HostCall& call) const { out << askHost(QDBusConnection::sessionBus(), call); }
};

int fail(int status, const std::exception& reason, std::ostream& error)
{
    error << "skyvane-host: " << oneLine(reason.what()) << "\n";
    return status;
}

} // namespace

int runCommand(const std::vector<std::string>& words, const ExtensionProgram& extension, Streams streams)
{
    if (words.empty()) {
        streams.error << usage();
        return 2;
    }
    try {
        std::visit(Runner{.program = extension, .out = streams.out}, parseCommandLine(words));
        return 0;
    } catch (const UsageError& error) {
        return fail(2, error, streams.error);
    } catch (const std::exception& error) {
        return fail(1, error, streams.error);
    }
}

} // namespace skyvane
