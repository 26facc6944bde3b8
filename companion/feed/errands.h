#pragma once

#include <QObject>
#include <QThreadPool>

#include <memory>
#include <stop_token>
#include <utility>

namespace skyvane {

/// Work that somebody waits for; forgotten, or replaced by other work, it is called off.
class Errand {
public:
    Errand() = default;
    explicit Errand(std::stop_source stop) : m_stop(std::move(stop)) { }
    ~Errand() { m_stop.request_stop(); }
    Errand(Errand&& other) noexcept : m_stop(std::exchange(other.m_stop, std::stop_source{std::nostopstate}))
    {
    }
    Errand& operator=(Errand&& other) noexcept
    {
        m_stop.request_stop();
        m_stop = std::exchange(other.m_stop, std::stop_source{std::nostopstate});
        return *this;
    }

private:
    std::stop_source m_stop{std::nostopstate};
};

/// Does work beside the event loop's thread, in which it lives.
class Errands {
public:
    Errands() { m_threads.setMaxThreadCount(8); }

    /// `work(std::stop_token)`, which throws nothing, on another thread; what it gives goes to `done` in the
    /// event loop, unless it was called off by then.
    template <class Work, class Done>
    [[nodiscard]] Errand run(Work work, Done done)
    {
        std::stop_source stop;
        m_threads.start([this, stop, work = std::move(work), done = std::move(done)] {
            auto outcome = std::make_shared<decltype(work(stop.get_token()))>(work(stop.get_token()));
            QMetaObject::invokeMethod(
                &m_home,
                [stop, done, outcome] {
                    if (!stop.stop_requested())
                        done(std::move(*outcome));
                },
                Qt::QueuedConnection);
        });
        return Errand{stop};
    }

private:
    QObject m_home;
    QThreadPool m_threads; ///< Ends, its work with it, before the home that it brings outcomes to.
};

} // namespace skyvane
