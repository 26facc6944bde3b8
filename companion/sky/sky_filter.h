#pragma once

#include <QSortFilterProxyModel>

namespace skyvane {

/// The sky list as the user has ordered and narrowed it. What is not known comes last either way; what is
/// alike stays nearest first.
class SkyFilter : public QSortFilterProxyModel {
    Q_OBJECT
public:
    explicit SkyFilter(QObject* parent = nullptr);

    /// Only aircraft of which any text has every one of these words; all without any.
    void setWords(const QString& words);

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

private:
    QStringList m_words;
};

} // namespace skyvane
