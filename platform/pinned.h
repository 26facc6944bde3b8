#pragma once

#include <atomic>
#include <utility>

namespace skyvane {

/// Holds a value in place of what the system would say (its clock, locale, home folder or network) until the
/// end of the scope. Tests do this, and a process that is about to give up asking. Guards of one type nest;
/// they are made and ended by one thread, while any thread may look.
template <class T>
class Pinned {
public:
    explicit Pinned(T value) : m_value(std::move(value)), m_outer(innermost().exchange(&m_value)) { }
    ~Pinned() { innermost() = m_outer; }
    Pinned(const Pinned&) = delete;
    Pinned& operator=(const Pinned&) = delete;

    /// The pinned value, or null: ask the system.
    static const T* current() { return innermost(); }

private:
    static std::atomic<const T*>& innermost()
    {
        static std::atomic<const T*> guard{nullptr};
        return guard;
    }

    T m_value;
    const T* m_outer;
};

} // namespace skyvane
