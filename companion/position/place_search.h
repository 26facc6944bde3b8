#pragma once

#include "companion/position/place_index.h"

#include <QObject>

#include <functional>
#include <memory>
#include <thread>
#include <vector>

namespace skyvane {

/// Search as one types, over places that are loaded at the first question on a thread of their own.
class PlaceSearch : public QObject {
    Q_OBJECT
public:
    using Load = std::function<std::vector<Place>()>;

    explicit PlaceSearch(Load load, QObject* parent = nullptr);
    ~PlaceSearch() override;

    /// Each question replaces the one before it, which then gets no answer.
    void ask(const QString& typed);

    /// Loads the places where that has not begun, so that the first answer need not wait for them.
    void prepare();

signals:
    /// Best first; empty when nothing fits.
    void answered(const QString& typed, const std::vector<skyvane::Place>& places);

private:
    void answer();

    Load m_load;
    std::unique_ptr<const PlaceIndex> m_index;
    std::optional<QString> m_question;
    std::jthread m_thread;
};

} // namespace skyvane
