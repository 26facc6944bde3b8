#pragma once

#include "companion/position/place_index.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace skyvane {

/// Search as one types, over places that are loaded at the first question on a thread of their own. When more
/// of them have come, the last question is answered again.
class PlaceSearch : public QObject {
    Q_OBJECT
public:
    using Places = std::function<std::vector<Place>()>;

    /// What brings the places: at once what the user knows best, and the whole, which takes longer, behind
    /// it.
    struct Load {
        template <class First>
        Load(First atOnce, Places later = {}) : first(std::move(atOnce)), whole(std::move(later))
        {
        }

        Places first;
        Places whole; ///< May be empty.
    };

    using Look = std::function<void(const PlaceIndex&)>;

    explicit PlaceSearch(Load load, QObject* parent = nullptr);
    ~PlaceSearch() override;

    /// Each question replaces the one before it, which then gets no answer.
    void ask(const QString& typed);

    /// Calls `look` with the places once they are loaded, at once where they are. Each one replaces the one
    /// before it, which then is not called.
    void consult(Look look);

    /// Loads the places where that has not begun, so that the first answer need not wait for them.
    void prepare();

signals:
    /// Best first; empty when nothing fits.
    void answered(const QString& typed, const std::vector<skyvane::Place>& places);

private:
    void take(std::unique_ptr<const PlaceIndex> index);
    void answer();

    Load m_load;
    std::unique_ptr<const PlaceIndex> m_index;
    std::optional<QString> m_question;
    QString m_lastQuestion; ///< Answered, and to be answered again once there are more places.
    Look m_look;
    std::jthread m_thread;
};

} // namespace skyvane
