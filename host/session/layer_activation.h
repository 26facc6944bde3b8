#pragma once

#include <QString>

namespace skyvane::LayerActivation {

/// An activation token for what the user starts with the last click or key in a window of this program. Empty
/// where the compositor gives none. Waits for its answer.
QString newToken();

} // namespace skyvane::LayerActivation
