#include "companion/settings/settings_file.h"

#include "platform/files/configuration_file.h"

#include <utility>

namespace skyvane {

SettingsFile::SettingsFile(std::chrono::milliseconds quiet, QObject* parent)
    : QObject(parent)
    , m_watch(
          Files::configurationFile(), [this] { look(); }, quiet)
    , m_content(SharedState::read())
{
}

void SettingsFile::look()
{
    Content now = SharedState::read();
    if (std::exchange(m_content, std::move(now)) != m_content)
        emit changedByOthers();
}

bool SettingsFile::write(const Content& content)
{
    if (content)
        SharedState::write(*content);
    else
        SharedState::clear();
    m_content = SharedState::read();
    return m_content == content;
}

} // namespace skyvane
