#pragma once

#include <QSortFilterProxyModel>

namespace skyvane {

/// The sky list as the user has ordered and narrowed it. Unknown values come last in either order; equal ones
/// stay nearest first.
class SkyFilter : public QSortFilterProxyModel {
    Q_OBJECT
public:
    explicit SkyFilter(QObject* parent = nullptr);

    /// Shows only aircraft in whose texts each of these words occurs; all of them for no words.
    void setWords(const QString& words);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    QStringList m_words;
};

} // namespace skyvane
