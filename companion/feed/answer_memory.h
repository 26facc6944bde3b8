#pragma once

#include <chrono>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <utility>

namespace skyvane {

/// What a source answered during this visit. That it had nothing, or could not be reached, holds for a while
/// only.
template <class Answer>
class AnswerMemory {
public:
    /// `most`: how many answers are kept at once.
    explicit AnswerMemory(std::chrono::milliseconds patience, std::size_t most = 64)
        : m_patience(patience), m_most(most)
    {
    }

    /// Null: ask. Valid until the next `keep`.
    const std::optional<Answer>* find(const std::string& key) const
    {
        const auto known = m_known.find(key);
        if (known == m_known.end())
            return nullptr;
        const auto& [answer, since] = known->second;
        return answer || Clock::now() - since < m_patience ? &answer : nullptr;
    }

    const std::optional<Answer>& keep(const std::string& key, std::optional<Answer> answer)
    {
        if (m_known.size() >= m_most)
            m_known.clear();
        return m_known.insert_or_assign(key, Known{std::move(answer), Clock::now()}).first->second.answer;
    }

private:
    using Clock = std::chrono::steady_clock;

    struct Known {
        std::optional<Answer> answer;
        Clock::time_point since;
    };

    std::chrono::milliseconds m_patience;
    std::size_t m_most;
    std::map<std::string, Known> m_known;
};

} // namespace skyvane
