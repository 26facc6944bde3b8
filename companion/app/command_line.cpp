#include "companion/app/command_line.h"

#include <string_view>

namespace skyvane {

namespace {

constexpr std::string_view usage = R"(usage: skyvane [--settings] [LINK]

Shows the aircraft around your home, one of them in detail, and the settings of the desktop widgets.

  LINK         skyvane://open or skyvane://aircraft/HEX, which names an aircraft by its ICAO address
  --settings   open the settings
  --service    start without a window and wait to be asked over D-Bus
  --version    print the version
  --help       print this text
)";

Printed refusal(const std::string& problem)
{
    return {.text = "skyvane: " + problem + "\n" + std::string{usage.substr(0, usage.find('\n') + 1)},
        .isError = true};
}

} // namespace

std::variant<CommandLine, Printed> readCommandLine(const std::vector<std::string>& words)
{
    CommandLine line;
    bool areOptionsOver = false;
    for (const std::string& word : words) {
        if (areOptionsOver || !word.starts_with('-')) {
            if (line.link)
                return refusal("one link at a time, and \"" + word + "\" is a second one");
            line.link = word;
        } else if (word == "--") {
            areOptionsOver = true;
        } else if (word == "--help" || word == "-h") {
            return Printed{.text = std::string{usage}, .isError = false};
        } else if (word == "--version") {
            return Printed{.text = "skyvane " SKYVANE_VERSION "\n", .isError = false};
        } else if (word == "--settings") {
            line.showsSettings = true;
        } else if (word == "--service") {
            line.isService = true;
        } else {
            return refusal("unknown option \"" + word + "\"");
        }
    }
    if (line.link && (line.showsSettings || line.isService))
        return refusal("\"" + *line.link + "\" goes with no option");
    return line;
}

} // namespace skyvane
