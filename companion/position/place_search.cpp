#include "companion/position/place_search.h"

#include "desk/text.h"
#include "platform/text/locale.h"

#include <utility>

namespace skyvane {

namespace {

/// "DE" of "de_DE".
QString ownCountry()
{
    return toQString(Locale::current().numbers).section(u'_', 1, 1);
}

} // namespace

PlaceSearch::PlaceSearch(Load load, QObject* parent) : QObject(parent), m_load(std::move(load)) { }

PlaceSearch::~PlaceSearch() = default;

void PlaceSearch::prepare()
{
    if (m_index || m_thread.joinable())
        return;
    m_thread = std::jthread{[this, load = m_load] {
        auto index
            = std::make_shared<std::unique_ptr<const PlaceIndex>>(std::make_unique<const PlaceIndex>(load()));
        QMetaObject::invokeMethod(this, [this, index] {
            m_index = std::move(*index);
            answer();
        });
    }};
}

void PlaceSearch::ask(const QString& typed)
{
    m_question = typed;
    prepare();
    answer();
}

void PlaceSearch::answer()
{
    constexpr std::size_t mostPlaces = 12;
    if (!m_index || !m_question)
        return;
    const QString typed = *std::exchange(m_question, std::nullopt);
    emit answered(typed, m_index->find(typed, ownCountry(), mostPlaces));
}

} // namespace skyvane
