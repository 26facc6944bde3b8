#pragma once

#include "companion/look/measures.h"
#include "core/model/aircraft.h"

#include <QString>
#include <QVariant>

namespace skyvane {

/// The sky list's columns, in their order.
enum class SkyColumn { name, model, operatorName, distance, altitude, climb, star };

/// What stands in the cells of the sky list.
namespace SkyCells {

QString title(SkyColumn column);
QString text(const Aircraft& aircraft, SkyColumn column, const Units& units);

/// What the column is ordered by: a number or a text; invalid where nothing is known.
QVariant sortKey(const Aircraft& aircraft, SkyColumn column);

/// Whether it has a badge.
bool isSetApart(const Aircraft& aircraft);

/// "Emergency", "Military", or nothing.
QString badge(const Aircraft& aircraft);

/// Its name, and its badge if it has one, for a screen reader.
QString spokenName(const Aircraft& aircraft);

/// The aircraft in a sentence's worth of words, for a tool tip.
QString summary(const Aircraft& aircraft);

/// The same for a screen reader, with distance and altitude.
QString spoken(const Aircraft& aircraft, const Units& units);

/// Every text by which it may be looked for, one a line.
QString searched(const Aircraft& aircraft);

} // namespace SkyCells

} // namespace skyvane
