#include "companion/settings/settings.h"

#include "desk/text.h"
#include "platform/text/locale.h"
#include "platform/text/localized.h"

#include <QLocale>
#include <QSignalBlocker>

#include <utility>

namespace skyvane {

namespace {

std::string customaryUnit()
{
    const QLocale locale{toQString(Locale::current().numbers)};
    return locale.measurementSystem() == QLocale::MetricSystem ? "km" : "mi";
}

SettingsDraft withoutHome(SettingsDraft draft)
{
    draft.place.reset();
    draft.label = localized("Home");
    return draft;
}

SettingsDraft firstDraft(const SettingsFile::Content& content)
{
    return content ? SettingsDraft::of(*content) : withoutHome({.unit = customaryUnit()});
}

} // namespace

Settings::Settings(const Pace& pace, QObject* parent)
    : QObject(parent), m_pace(pace), m_file(pace.calm), m_draft(firstDraft(m_file.content())), m_base(m_draft)
{
    m_settling.setSingleShot(true);
    m_settling.callOnTimeout(this, [this] { settle(); });
    connect(&m_file, &SettingsFile::changedByOthers, this, [this] { follow(); });
}

Settings::~Settings()
{
    const QSignalBlocker silently{this};
    settle();
}

void Settings::choose(const SettingsDraft& draft, Settled settled)
{
    if (m_draft != draft) {
        m_draft = draft;
        emit draftChanged();
    }
    if (settled == Settled::whenTold)
        m_settling.stop();
    else
        m_settling.start(settled == Settled::soon ? m_pace.choosing : m_pace.typing);
}

void Settings::settle()
{
    m_settling.stop();
    if (m_draft == m_base)
        return;
    m_file.look();
    const auto config = m_draft.toConfig();
    if (!config || config == m_file.content())
        return;
    if (m_file.write(config)) {
        m_base = m_draft;
        emit written();
    } else {
        emit failedToWrite();
    }
}

void Settings::forgetHome()
{
    m_settling.stop();
    if (!m_file.write(std::nullopt)) {
        emit failedToWrite();
        return;
    }
    m_draft = m_base = withoutHome(m_draft);
    emit draftChanged();
    emit written();
}

void Settings::follow()
{
    const SettingsDraft now = m_file.content() ? SettingsDraft::of(*m_file.content()) : withoutHome(m_base);
    const SettingsDraft before = std::exchange(m_base, now);
    m_draft = merged(m_draft, before, now);
    emit draftChanged();
}

} // namespace skyvane
