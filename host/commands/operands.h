#pragma once

#include "host/commands/command.h"

namespace skyvane {

/// A widget's kind, in full or its last component, with its line in the help.
Operand kindOperand();

/// A family, which stands behind a kind.
Operand familyOperand();

/// The number of a placed widget.
Operand numberOperand();
Operand screenOperand();

/// The operand's value. Throws `UsageError`.
WidgetFamily familyNamed(const std::string& word);
int placedNumber(const std::string& word);

} // namespace skyvane
