#pragma once

#include "core/model/aircraft.h"

#include <QString>

#include <string>
#include <vector>

/// What the page of one aircraft says in words.
namespace skyvane::AircraftWords {

struct Fact {
    QString name;
    QString value;

    bool operator==(const Fact&) const = default;
};

/// "Airbus A320 · D-AIPA · Lufthansa", whatever of it is known and not its name already.
QString identity(const Aircraft& aircraft);

/// What sets it apart, in a sentence; empty: nothing.
QString alarm(const Aircraft& aircraft);

/// Those that are known. The unit as `Aircraft::distanceText` takes it.
std::vector<Fact> facts(const Aircraft& aircraft, const std::string& unit);

} // namespace skyvane::AircraftWords
