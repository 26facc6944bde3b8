#pragma once

namespace skyvane::test {

/// Gives this process, before it starts anything, an environment that is the same on every machine: an empty
/// home folder, no message bus, no display, English texts, UTC, and no fonts but those that the tests name.
/// Of the machine's own variables only those for sanitizers and the test framework stay. To be called first
/// in main(), once.
void enterOwnSurroundings();

} // namespace skyvane::test
