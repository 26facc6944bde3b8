#pragma once

#include "companion/position/place.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace skyvane {

/// Finds places by what one has typed of their names. Case, accents and punctuation make no difference.
class PlaceIndex {
public:
    explicit PlaceIndex(std::vector<Place> places);

    /// The best `limit` places, best first: the name itself or an airport's code, names that begin so, then
    /// names and regions of which some words do, then names that hold it. Among equals cities come before
    /// airports; of those with the name itself well-known ones come first, else those of the user's own
    /// country.
    std::vector<Place> find(const QString& typed, const QString& countryCode, std::size_t limit) const;

private:
    struct Entry {
        Place place;
        QStringList names; ///< Folded.
        QStringList nameWords; ///< Of all names and the code, folded.
        QStringList regionWords;
    };

    static int rank(const Entry& entry, const QString& typed, const QStringList& words);

    std::vector<Entry> m_entries;
};

} // namespace skyvane
