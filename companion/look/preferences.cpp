#include "companion/look/preferences.h"

#include "paint/to_qt.h"

#include <QSettings>

#include <array>

namespace skyvane {

namespace {

constexpr std::array words{"aviation", "metric", "imperial"}; // As `Measures` has them.

QString measuresKey()
{
    return QStringLiteral("view/measures");
}

QString mapKey()
{
    return QStringLiteral("view/map");
}

} // namespace

Preferences::Preferences(const std::filesystem::path& file, QObject* parent)
    : QObject(parent), m_file(toQString(file.string()))
{
    const QSettings memory{m_file, QSettings::IniFormat};
    const QString word = memory.value(measuresKey()).toString();
    for (std::size_t place = 0; place < words.size(); ++place) {
        if (word == QLatin1String{words[place]})
            m_measures = static_cast<Measures>(place);
    }
    m_isMapShown = memory.value(mapKey(), m_isMapShown).toBool();
}

void Preferences::choose(Measures measures)
{
    if (m_measures == measures)
        return;
    m_measures = measures;
    write(measuresKey(), QLatin1String{words[static_cast<std::size_t>(measures)]});
}

void Preferences::showMap(bool isShown)
{
    if (m_isMapShown == isShown)
        return;
    m_isMapShown = isShown;
    write(mapKey(), isShown);
}

void Preferences::write(const QString& key, const QVariant& value)
{
    QSettings{m_file, QSettings::IniFormat}.setValue(key, value);
    emit changed();
}

} // namespace skyvane
