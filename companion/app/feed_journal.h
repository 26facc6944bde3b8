#pragma once

#include "companion/feed/sky_feed.h"

#include <QObject>

#include <string>

namespace skyvane {

/// Tells the journal why no aircraft came, to the letter: once a failure, not once a try.
class FeedJournal : public QObject {
    Q_OBJECT
public:
    /// The feed outlives it.
    explicit FeedJournal(const SkyFeed& feed);

private:
    void tell(const SkyReport& report);

    std::string m_told;
};

} // namespace skyvane
