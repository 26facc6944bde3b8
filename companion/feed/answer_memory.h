#pragma once

#include <chrono>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <utility>

namespace skyvane {

/// Cache of what a service answered, emptied when it is full. An answer stays until then; that there was none
/// expires.
template <class Answer>
class AnswerMemory {
public:
    /// `patience`: time until the absence of an answer expires. `most`: how many answers are kept at once.
    explicit AnswerMemory(std::chrono::milliseconds patience, std::size_t most = 64)
        : m_patience(patience), m_most(most)
    {
    }

    /// The answer for this key; null when the service has to be asked. Valid until the next `keep`.
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
