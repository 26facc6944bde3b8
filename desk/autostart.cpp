#include "desk/autostart.h"

#include "platform/files/files.h"

#include <QStandardPaths>

#include <algorithm>
#include <cstddef>
#include <sstream>

namespace skyvane {

namespace {

using Autostart::ownEntry;

constexpr const char* entryName = "skyvane-host.desktop";
constexpr std::size_t largestEntry = 1 << 16;

bool isHidden(const std::string& entry)
{
    std::istringstream lines{entry};
    for (std::string line; std::getline(lines, line);) {
        std::erase(line, ' ');
        if (line == "Hidden=true")
            return true;
    }
    return false;
}

bool areStartedAnyway(const AutostartFolders& folders)
{
    if (folders.isShellThere)
        return true;
    for (const auto& folder : folders.systemWide) {
        if (const auto entry = Files::read(folder / entryName, largestEntry))
            return !isHidden(*entry);
    }
    return false;
}

bool write(const AutostartFolders& folders, const std::string& lines)
{
    std::error_code ignored;
    std::filesystem::create_directories(folders.own, ignored);
    return Files::writeAtomically(
        ownEntry(folders), "[Desktop Entry]\nType=Application\nName=Skyvane Widgets\n" + lines);
}

bool removeOwn(const AutostartFolders& folders)
{
    std::error_code error;
    std::filesystem::remove(ownEntry(folders), error);
    return !error;
}

/// A text as it stands in an entry.
std::string textLine(const std::string& text)
{
    std::string line;
    for (const char character : text)
        line += character == '\\' ? std::string{"\\\\"} : std::string{character};
    return line;
}

} // namespace

AutostartFolders AutostartFolders::standard()
{
    AutostartFolders folders{
        .own = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation).toStdString(),
        .systemWide = {},
    };
    folders.own /= "autostart";
    for (const QString& path : QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation)) {
        const auto folder = std::filesystem::path{path.toStdString()} / "autostart";
        if (folder != folders.own)
            folders.systemWide.push_back(folder);
    }
    return folders;
}

namespace Autostart {

std::filesystem::path ownEntry(const AutostartFolders& folders)
{
    return folders.own / entryName;
}

bool isOn(const AutostartFolders& folders)
{
    if (const auto entry = Files::read(ownEntry(folders), largestEntry))
        return !isHidden(*entry);
    return areStartedAnyway(folders);
}

/// TryExec: once the program is uninstalled, the entry starts nothing.
bool turnOn(const AutostartFolders& folders, const std::filesystem::path& program)
{
    if (areStartedAnyway(folders))
        return removeOwn(folders);
    return write(
        folders, "TryExec=" + textLine(program.string()) + "\nExec=" + execLine(program.string()) + "\n");
}

bool turnOff(const AutostartFolders& folders)
{
    if (areStartedAnyway(folders))
        return write(folders, "Hidden=true\n");
    return removeOwn(folders);
}

/// Quoted as a shell would want it; then each backslash doubled, as in every text of an entry.
std::string execLine(const std::string& path)
{
    std::string quoted = "\"";
    for (const char character : path) {
        switch (character) {
        case '"':
        case '`':
        case '$':
            quoted += "\\\\";
            break;
        case '\\':
            quoted += "\\\\\\";
            break;
        case '%':
            quoted += '%';
            break;
        default:
            break;
        }
        quoted += character;
    }
    return quoted + "\" --supervise";
}

} // namespace Autostart

} // namespace skyvane
