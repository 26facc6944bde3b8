#include "companion/position/place_search.h"

#include "platform/text/locale.h"

#include <QTimeZone>

#include <utility>

namespace skyvane {

namespace {

Vantage ownVantage()
{
    const Locale locale = Locale::current();
    const std::size_t underline = locale.numbers.find('_');
    return {
        .countryCode = underline != std::string::npos ? locale.numbers.substr(underline + 1, 2) : "",
        .timeZone = locale.timeZone.empty() ? QTimeZone::systemTimeZoneId().toStdString() : locale.timeZone,
    };
}

} // namespace

PlaceSearch::PlaceSearch(Load load, QObject* parent) : QObject(parent), m_load(std::move(load)) { }

PlaceSearch::~PlaceSearch() = default;

void PlaceSearch::prepare()
{
    if (m_index || m_thread.joinable())
        return;
    m_thread = std::jthread{[this, load = m_load](const std::stop_token& stop) {
        for (const Places& places : {load.first, load.whole}) {
            if (!places || stop.stop_requested())
                return;
            auto index = std::make_shared<std::unique_ptr<const PlaceIndex>>(
                std::make_unique<const PlaceIndex>(places()));
            QMetaObject::invokeMethod(this, [this, index] { take(std::move(*index)); });
        }
    }};
}

void PlaceSearch::take(std::unique_ptr<const PlaceIndex> index)
{
    m_index = std::move(index);
    if (!m_question && !m_lastQuestion.isEmpty())
        m_question = m_lastQuestion;
    answer();
}

void PlaceSearch::ask(const QString& typed)
{
    m_question = typed;
    prepare();
    answer();
}

void PlaceSearch::consult(Look look)
{
    m_look = std::move(look);
    prepare();
    answer();
}

void PlaceSearch::answer()
{
    constexpr std::size_t mostPlaces = 12;
    if (!m_index)
        return;
    if (const Look look = std::exchange(m_look, {}))
        look(*m_index);
    if (!m_question)
        return;
    const QString typed = *std::exchange(m_question, std::nullopt);
    m_lastQuestion = typed;
    emit answered(typed, m_index->find(typed.toStdString(), ownVantage(), mostPlaces));
}

} // namespace skyvane
