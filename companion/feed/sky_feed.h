#pragma once

#include "companion/feed/errands.h"
#include "core/config/shared_state.h"
#include "core/feed/adsb.h"
#include "core/views/sky_entry.h"
#include "platform/clock.h"
#include "platform/net/transport.h"

#include <QTimer>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

namespace skyvane {

/// What is known of the sky around home.
struct SkyReport {
    SkyEntry entry; ///< Its date and aircraft are those of the last answer.
    bool hasAnswer = false;
    unsigned answers = 0; ///< How many there have been of this sky: with another one come other aircraft.
    bool isAsking = false;
    std::string problem{}; ///< What went wrong since the last answer, in the user's words; empty: nothing.
    std::string details{}; ///< What was said of the problem to the letter; may be empty.
    std::vector<ADSB::Inquiry> asked{}; ///< The sources that were asked last, and what became of it.
    std::optional<Date> triedAt{}; ///< When that was; absent before the first time.

    bool operator==(const SkyReport&) const = default;
};

/// Asks for the aircraft around home, and again every minute while somebody watches.
class SkyFeed : public QObject {
    Q_OBJECT
public:
    SkyFeed(
        Errands& errands, Transport transport, std::chrono::milliseconds interval = std::chrono::minutes{1});

    const SkyReport& report() const { return m_report; }

    /// Asks at once, unless an answer is on its way already.
    void refresh();

    /// Reads the configuration anew. With another home or radius the sky is another one.
    void reload();

    void setWatched(bool isWatched);

    /// Asks nobody by itself before one more interval has passed.
    void holdOff();

signals:
    void changed();

private:
    struct Outcome {
        std::vector<Aircraft> aircraft;
        std::string problem{};
        std::string details{};
        std::vector<ADSB::Inquiry> asked{};
    };

    static Outcome ask(const SharedState::Config& config, const Transport& transport, std::stop_token stop);
    void readConfiguration();
    void take(Outcome outcome);
    void planNext();

    Errands& m_errands;
    Transport m_transport;
    std::chrono::milliseconds m_interval;
    std::optional<SharedState::Config> m_config;
    SkyReport m_report;
    Errand m_asking;
    QTimer m_timer;
    std::chrono::steady_clock::time_point m_due{}; ///< Of the next request.
    bool m_isWatched = false;
};

} // namespace skyvane
