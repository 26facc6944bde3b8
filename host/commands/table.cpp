#include "host/commands/table.h"

#include "host/commands/command_line.h"
#include "host/commands/line_command.h"
#include "host/commands/operands.h"
#include "host/commands/render_command.h"
#include "host/commands/status_command.h"
#include "host/service/ask_host.h"
#include "platform/text/printable.h"
#include "ui/layout/widget_container.h"

#include <ostream>

namespace skyvane {

namespace {

void tell(const CommandContext& context, const HostCall& call)
{
    context.out << Unicode::printable(askHost(QDBusConnection::sessionBus(), call));
}

void add(const Arguments& arguments, const CommandContext& context)
{
    const QString kind = QString::fromStdString(arguments.operands[0]);
    const QString family = QString::fromStdString(arguments.operands[1]);
    tell(context, [&](HostInterface& host) { return host.Add(kind, family); });
}

void remove(const Arguments& arguments, const CommandContext& context)
{
    const int widget = placedNumber(arguments.operands[0]);
    tell(context, [&](HostInterface& host) { return host.Remove(widget); });
}

void move(const Arguments& arguments, const CommandContext& context)
{
    const int widget = placedNumber(arguments.operands[0]);
    const QString screen = QString::fromStdString(arguments.operands[1]);
    tell(context, [&](HostInterface& host) { return host.Move(widget, screen); });
}

template <bool isLocked>
void setLocked(const Arguments&, const CommandContext& context)
{
    tell(context, [](HostInterface& host) { return host.SetLocked(isLocked); });
}

template <auto method>
void tellHost(const Arguments&, const CommandContext& context)
{
    tell(context, method);
}

/// One line a widget: kind, name and families, separated by tabs.
void list(const Arguments&, const CommandContext& context)
{
    const Protocol::WidgetList list = ExtensionClient{context.extension}.ask(Protocol::ListCall{});
    for (const WidgetInfo& widget : list.widgets) {
        std::string families;
        for (const WidgetFamily family : widget.families)
            families.append(families.empty() ? "" : ", ").append(WidgetContainer::name(family));
        context.out << Unicode::oneLine(widget.kind) << "\t" << Unicode::oneLine(widget.displayName) << "\t"
                    << families << "\n";
    }
}

void help(const Arguments&, const CommandContext& context)
{
    context.out << usage(commands());
}

void version(const Arguments&, const CommandContext& context)
{
    context.out << "skyvane-host " SKYVANE_VERSION "\n";
}

Operand unexplained(Operand operand)
{
    operand.help.reset();
    return operand;
}

} // namespace

const std::vector<Command>& commands()
{
    static const std::vector<Command> table{
        {
            .name = "add",
            .operands = {unexplained(kindOperand()), unexplained(familyOperand())},
            .help = "Adds a widget to the desktop and prints its number.",
            .meaning = "Add a widget to the desktop",
            .run = add,
        },
        {
            .name = "remove",
            .operands = {numberOperand()},
            .meaning = "Remove a widget from the desktop",
            .run = remove,
        },
        {
            .name = "undo",
            .help = "Puts the widget back that was removed within the last ten seconds.",
            .meaning = "Put the widget back that was just removed",
            .run = tellHost<&HostInterface::Undo>,
        },
        {
            .name = "move",
            .operands = {numberOperand(), screenOperand()},
            .meaning = "Move a widget to another screen",
            .run = move,
        },
        {
            .name = "lock",
            .help = "No widget can be dragged any more.",
            .meaning = "Keep the widgets where they are",
            .run = setLocked<true>,
        },
        {
            .name = "unlock",
            .meaning = "Let widgets be dragged",
            .run = setLocked<false>,
        },
        {
            .name = "refresh",
            .meaning = "Ask for new content",
            .run = tellHost<&HostInterface::Refresh>,
        },
        {
            .name = "focus",
            .help = "Gives the widgets the keyboard: Tab leads on, Enter opens.",
            .meaning = "Give the widgets the keyboard",
            .run = tellHost<&HostInterface::Focus>,
        },
        {
            .name = "quit",
            .meaning = "End the host",
            .run = tellHost<&HostInterface::Quit>,
        },
        {
            .name = "list --placed",
            .help = "The widgets on the desktop: number, kind and family.",
            .meaning = "Those on the desktop",
            .run = tellHost<&HostInterface::ListPlaced>,
        },
        {
            .name = "list --screens",
            .help = "The screens' names, the primary one's first.",
            .meaning = "The screens that widgets can be on",
            .run = tellHost<&HostInterface::ListScreens>,
        },
        {
            .name = "list",
            .help = "The widgets: kind, name and families.",
            .meaning = "The widgets that there are",
            .run = list,
        },
        renderCommand(),
        lineCommand(),
        statusCommand(),
        {
            .name = "--supervise",
            .help = "Shows the widgets, too, and again when their display comes back or they crash.",
            .meaning = "Show the widgets, again when they end by a failure",
            .run = [](const Arguments&, const CommandContext&) {}, // Done before there are commands.
        },
        {
            .name = "--help",
            .meaning = "Print a summary",
            .run = help,
        },
        {
            .name = "--version",
            .meaning = "Print the version",
            .run = version,
        },
    };
    return table;
}

} // namespace skyvane
