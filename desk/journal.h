#pragma once

namespace skyvane {

/// From now on every line of this program's journal, the toolkit's own included, is one line of printable
/// text and no longer than `Unicode::longestLine`, whatever it quotes.
void keepJournalPrintable();

} // namespace skyvane
