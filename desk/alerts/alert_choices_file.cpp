#include "desk/alerts/alert_choices_file.h"

#include "platform/files/files.h"

#include <QStandardPaths>

#include <system_error>

namespace skyvane::AlertChoicesFile {

namespace {

constexpr std::size_t largestFile = 1024UL * 1024; // Bytes.

} // namespace

std::filesystem::path standardPath()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return std::filesystem::path{folder.toStdString()} / "skyvane/alerts.json";
}

AlertChoices read(const std::filesystem::path& file)
{
    const auto bytes = Files::read(file, largestFile);
    return bytes ? AlertChoices::decoded(*bytes).value_or(AlertChoices{}) : AlertChoices{};
}

bool write(const std::filesystem::path& file, const AlertChoices& choices)
{
    std::error_code ignored;
    std::filesystem::create_directories(file.parent_path(), ignored);
    return Files::writeAtomically(file, choices.encoded());
}

} // namespace skyvane::AlertChoicesFile
