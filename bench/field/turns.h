#pragma once

#include "tests/session/x_session.h"

#include <QProcess>

#include <filesystem>
#include <functional>

namespace skyvane::bench {

/// What one turn of a program took, and what the program holds after it.
struct Turn {
    double ownMilliseconds; ///< CPU time of the program itself.
    double othersMilliseconds; ///< CPU time of the programs that it started and that have ended.
    double residentMiB;
    double openFiles;
};

/// Plays a turn for each line on standard input, and prints what it took.
void playTurns(const std::function<void()>& turn);

/// A program that plays turns, seen from outside; it ends with this.
class TurnPlayer {
public:
    TurnPlayer(const test::XSession& session, const std::filesystem::path& program,
        const QStringList& arguments = {});
    ~TurnPlayer();
    TurnPlayer(const TurnPlayer&) = delete;
    TurnPlayer& operator=(const TurnPlayer&) = delete;

    /// Has it play the next turn. Throws when it does not.
    Turn next();

private:
    QProcess m_process;
};

} // namespace skyvane::bench
