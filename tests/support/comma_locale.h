#pragma once

#include "tests/support/scratch_folder.h"

namespace skyvane::test {

/// While it lives, the C library writes "1,5": as a program does that took on the locale of half of Europe.
/// The locale is made for the occasion, as machines have no other than the neutral one.
class CommaLocale {
public:
    CommaLocale();
    ~CommaLocale();
    CommaLocale(const CommaLocale&) = delete;
    CommaLocale& operator=(const CommaLocale&) = delete;

private:
    ScratchFolder m_folder;
};

} // namespace skyvane::test
