// SPDX-License-Identifier: MIT

/// Exponential back-off: how long to wait before a program that has failed is started again.
export class BackOff {
    static FIRST = 1_000; // Milliseconds.
    static LONGEST = 300_000;
    static SOUND_RUN = 60_000; // After one of that length the next failure counts as the first.
    static MOST_FAILURES = 10; // In a row.

    _failures = 0;

    /// After a run of so many milliseconds that ended in a failure; null when it is to be left alone.
    next(run) {
        this._failures = run >= BackOff.SOUND_RUN ? 1 : this._failures + 1;
        if (this._failures > BackOff.MOST_FAILURES)
            return null;
        return Math.min(BackOff.FIRST * 2 ** (this._failures - 1), BackOff.LONGEST);
    }

    reset() {
        this._failures = 0;
    }
}
