#include "host/alerts/told_alerts.h"

#include "platform/files/files.h"
#include "platform/json/object.h"
#include "protocol/record_codec.h"

#include <QLoggingCategory>
#include <QStandardPaths>

#include <algorithm>
#include <system_error>

namespace skyvane {

namespace {

Q_LOGGING_CATEGORY(journal, "skyvane.host.alerts")

constexpr std::size_t largestFile = std::size_t{8} << 20; // Bytes.
constexpr std::int64_t version = 1;

struct Told {
    std::string id;
    Date at;
};

Told told(JSON::Value value)
{
    const JSON::Object members{value};
    return {.id = members.required("id", JSON::text), .at = members.required("at", &Protocol::read<Date>)};
}

/// Nothing, where there is nothing to read: it is but a memory.
std::map<std::string, Date> decoded(const std::optional<std::string>& bytes)
{
    std::map<std::string, Date> all;
    try {
        const JSON::Document document{bytes.value_or("")};
        const JSON::Object members{document.root()};
        if (members.required("version", JSON::integer) == version) {
            for (Told& one : members.required("told", JSON::listOf(told)))
                all.insert_or_assign(std::move(one.id), one.at);
        }
    } catch (const JSON::DecodingError&) {
        all.clear();
    }
    return all;
}

} // namespace

std::filesystem::path ToldAlerts::standardPath()
{
    const QString home = QStandardPaths::writableLocation(QStandardPaths::HomeLocation);
    const std::filesystem::path given = qEnvironmentVariable("XDG_STATE_HOME").toStdString();
    const std::filesystem::path folder
        = given.is_absolute() ? given : std::filesystem::path{home.toStdString()} / ".local/state";
    return folder / "skyvane/told.json";
}

bool ToldAlerts::has(const std::string& id, Date now)
{
    const auto found = told().find(id);
    return found != told().end() && std::chrono::abs(now - found->second) < memory;
}

void ToldAlerts::add(const std::vector<std::string>& ids, Date now)
{
    forgetOld(now);
    for (const std::string& id : ids) {
        if (told().size() < most || told().contains(id))
            told().insert_or_assign(id, now);
    }
    write();
}

std::map<std::string, Date>& ToldAlerts::told()
{
    if (!m_told)
        m_told = decoded(Files::read(m_file, largestFile));
    return *m_told;
}

/// A clock that was set may have made some future ones.
void ToldAlerts::forgetOld(Date now)
{
    std::erase_if(told(), [&](const auto& one) { return std::chrono::abs(now - one.second) >= memory; });
}

void ToldAlerts::write() const
{
    Protocol::Json list = Protocol::Json::array();
    for (const auto& [id, at] : *m_told)
        list.push_back({{"id", id}, {"at", Protocol::write(at)}});
    const Protocol::Json whole{{"version", version}, {"told", list}};
    std::error_code ignored;
    std::filesystem::create_directories(m_file.parent_path(), ignored);
    if (!Files::writeAtomically(
            m_file, whole.dump(-1, ' ', false, Protocol::Json::error_handler_t::replace) + "\n"))
        qCWarning(journal, "%s cannot be written", m_file.c_str());
}

} // namespace skyvane
