#include "host/placing/host_file.h"

#include "platform/files/files.h"

#include <QLoggingCategory>
#include <QStandardPaths>

namespace skyvane {

namespace {

Q_LOGGING_CATEGORY(journal, "skyvane.host.file")

constexpr std::size_t largestFile = 1024UL * 1024;

std::filesystem::path freeNameAside(const std::filesystem::path& file)
{
    std::filesystem::path name = file.string() + ".broken";
    std::error_code ignored;
    for (int number = 2; std::filesystem::exists(std::filesystem::symlink_status(name, ignored)); ++number)
        name = file.string() + ".broken-" + std::to_string(number);
    return name;
}

} // namespace

std::filesystem::path HostFile::standardPath()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return std::filesystem::path{folder.toStdString()} / "skyvane/host.json";
}

std::optional<Arrangement> HostFile::read()
{
    std::error_code error;
    Files::removeAbandonedDrafts(m_file);
    if (!std::filesystem::exists(std::filesystem::symlink_status(m_file, error)))
        return std::nullopt;
    const auto bytes = Files::read(m_file, largestFile);
    if (auto arrangement = bytes ? Arrangement::decoded(*bytes) : std::nullopt)
        return arrangement;
    const std::filesystem::path aside = freeNameAside(m_file);
    std::filesystem::rename(m_file, aside, error);
    m_isUntouchable = static_cast<bool>(error);
    if (m_isUntouchable)
        qCWarning(journal, "%s cannot be understood and is left as it is", m_file.c_str());
    else
        qCWarning(journal, "%s cannot be understood and is now %s", m_file.c_str(), aside.c_str());
    return std::nullopt;
}

bool HostFile::write(const Arrangement& arrangement)
{
    if (m_isUntouchable)
        return false;
    std::error_code ignored;
    std::filesystem::create_directories(m_file.parent_path(), ignored);
    const bool isWritten = Files::writeAtomically(m_file, arrangement.encoded());
    if (!isWritten)
        qCWarning(journal, "%s cannot be written", m_file.c_str());
    return isWritten;
}

} // namespace skyvane
