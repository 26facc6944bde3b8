#pragma once

#include "companion/look/measures.h"
#include "core/model/aircraft.h"

#include <QString>

#include <vector>

/// What the page of one aircraft says in words.
namespace skyvane::AircraftWords {

struct Fact {
    QString name;
    QString value;

    bool operator==(const Fact&) const = default;
};

/// Model, registration and operator in one line, "Airbus A320 · D-AIPA · Lufthansa", without those that are
/// unknown or its name already.
QString identity(const Aircraft& aircraft);

/// One sentence about an emergency or a military aircraft; empty for every other.
QString alarm(const Aircraft& aircraft);

/// The facts that are known of the aircraft.
std::vector<Fact> facts(const Aircraft& aircraft, const Units& units);

} // namespace skyvane::AircraftWords
