#pragma once

#include "alerts/sky_alert.h"
#include "protocol/alert.h"
#include "protocol/alert_rules.h"

#include <vector>

/// Alerts and their rules, between the protocol and the room that knows aircraft.
namespace skyvane::Extension {

/// Throws `JSON::DecodingError`, which names the rule, when one is none that the protocol allows.
void requireSound(const AlertRules& rules);

SkyAlertRules skyAlertRules(const AlertRules& rules);

/// The first of them, as many as `Limits::longestAlerts` holds.
std::vector<Alert> alertsThatFit(const std::vector<SkyAlert>& alerts);

} // namespace skyvane::Extension
