#pragma once

#include "companion/look/measures.h"
#include "core/model/aircraft.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

/// What the page of one aircraft says in words.
namespace skyvane::AircraftWords {

struct Fact {
    QString name;
    QString value;

    bool operator==(const Fact&) const = default;
};

/// Model, registration and operator in one line, "Airbus A320 · D-AIPA · Lufthansa", without those that are
/// unknown or its name already. `airline`: whose flight it is, for an operator that is not known otherwise.
QString identity(const Aircraft& aircraft, const std::optional<std::string>& airline);

/// One sentence about an emergency or a military aircraft; empty for every other. `isThere`: it is in range,
/// and has not left since.
QString alarm(const Aircraft& aircraft, bool isThere);

/// The facts that are known of the aircraft.
std::vector<Fact> facts(const Aircraft& aircraft, const Units& units);

} // namespace skyvane::AircraftWords
