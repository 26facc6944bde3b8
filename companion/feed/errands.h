#pragma once

#include <QObject>
#include <QThreadPool>

#include <memory>
#include <stop_token>
#include <utility>

namespace skyvane {

/// Cancellable task: the handle of work that somebody waits for. Destroyed, or replaced by another, it
/// cancels the work.
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

/// Runs cancellable tasks on threads beside the event loop's, in which it lives.
class Errands {
public:
    Errands()
    {
        m_threads.setMaxThreadCount(8);
        m_threads.setExpiryTimeout(0); // A thread that waited for more work would wake up to end.
    }

    /// Runs `work(std::stop_token)`, which throws nothing, on another thread, and hands its result to `done`
    /// in the event loop, unless it was cancelled by then.
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
    QThreadPool m_threads; ///< Declared last: it waits for its work, whose results go to `m_home`.
};

} // namespace skyvane
