#pragma once

#include "ui/layout/display_list.h"

#include <string>

namespace skyvane {

/// One line an item, then one a link, lengths to 0.1 point: for tests and for a developer's eye.
std::string dump(const DisplayList& list);

} // namespace skyvane
