#pragma once

#include "host/extension/schedule.h"
#include "paint/widget_card.h"

#include <QString>

namespace skyvane {

/// The mark in the corner of a widget that shows this.
WidgetCard::Mark markOf(const ShownEntry& content);

/// What is not as usual, in a sentence for a screen reader and the tool tip; else empty.
QString stateOf(const ShownEntry& content);

} // namespace skyvane
