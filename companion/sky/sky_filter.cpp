#include "companion/sky/sky_filter.h"

#include "companion/sky/sky_model.h"

#include <algorithm>

namespace skyvane {

SkyFilter::SkyFilter(QObject* parent) : QSortFilterProxyModel(parent)
{
    setSortRole(SkyModel::SortRole);
    setDynamicSortFilter(true);
}

void SkyFilter::setWords(const QString& words)
{
    m_words = words.split(QLatin1Char{' '}, Qt::SkipEmptyParts);
    invalidateFilter();
}

bool SkyFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    if (m_words.isEmpty())
        return true;
    const QString texts
        = sourceModel()->index(row, /*column=*/0, parent).data(SkyModel::FilterRole).toString();
    return std::ranges::all_of(
        m_words, [&](const QString& word) { return texts.contains(word, Qt::CaseInsensitive); });
}

bool SkyFilter::lessThan(const QModelIndex& left, const QModelIndex& right) const
{
    const QVariant one = left.data(SkyModel::SortRole);
    const QVariant other = right.data(SkyModel::SortRole);
    if (one.isValid() != other.isValid())
        return one.isValid() == (sortOrder() == Qt::AscendingOrder);
    if (one.typeId() == QMetaType::QString)
        return QString::localeAwareCompare(one.toString(), other.toString()) < 0;
    return one.toDouble() < other.toDouble();
}

} // namespace skyvane
