#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace skyvane::test {

/// What surrounds every program that a stage starts, until the end of the scope.
class ProgramEnvironment {
public:
    struct Content {
        std::vector<std::string> variables{}; ///< Of the environment, which has none by itself.
        std::function<void()> prepare{}; ///< Called by the thread that starts the program, which ends then.
    };

    explicit ProgramEnvironment(Content content) : m_before(std::exchange(current(), std::move(content))) { }
    ~ProgramEnvironment() { current() = std::move(m_before); }
    ProgramEnvironment(const ProgramEnvironment&) = delete;
    ProgramEnvironment& operator=(const ProgramEnvironment&) = delete;

    static Content& current()
    {
        static Content content;
        return content;
    }

private:
    Content m_before;
};

} // namespace skyvane::test
