#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <utility>

namespace skyvane {

/// Cache of what a service answered: the least recently used answer goes when it is full, and each expires.
template <class Answer>
class AnswerMemory {
public:
    struct Keeping {
        std::chrono::milliseconds answer; ///< How long one is kept.
        std::chrono::milliseconds absence{
            std::chrono::minutes{1}}; ///< How long it is kept that there is none.
        std::size_t most = 64; ///< Answers at once.
    };

    explicit AnswerMemory(const Keeping& keeping) : m_keeping(keeping) { }

    /// The answer for this key; null when the service has to be asked. Valid until the next `keep`.
    const std::optional<Answer>* find(const std::string& key)
    {
        const auto known = m_known.find(key);
        if (known == m_known.end())
            return nullptr;
        auto& [answer, since, use] = known->second;
        if (Clock::now() - since >= (answer ? m_keeping.answer : m_keeping.absence)) {
            m_known.erase(known);
            return nullptr;
        }
        use = ++m_uses;
        return &answer;
    }

    const std::optional<Answer>& keep(const std::string& key, std::optional<Answer> answer)
    {
        if (!m_known.contains(key) && m_known.size() >= m_keeping.most)
            m_known.erase(
                std::ranges::min_element(m_known, {}, [](const auto& known) { return known.second.use; }));
        Known known{.answer = std::move(answer), .since = Clock::now(), .use = ++m_uses};
        return m_known.insert_or_assign(key, std::move(known)).first->second.answer;
    }

private:
    using Clock = std::chrono::steady_clock;

    struct Known {
        std::optional<Answer> answer;
        Clock::time_point since;
        std::size_t use; ///< The higher the later.
    };

    Keeping m_keeping;
    std::size_t m_uses = 0;
    std::map<std::string, Known> m_known;
};

} // namespace skyvane
