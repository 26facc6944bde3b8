#include "companion/photo/photo_decoder.h"

#include "companion/photo/photo_image.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>

namespace skyvane {

namespace {

/// Shared by the thread that decodes and the one that waits, which may be gone first.
struct Outcome {
    std::mutex mutex{}; ///< Guards what follows.
    std::condition_variable_any changed{};
    std::optional<QImage> image{};
};

} // namespace

PhotoDecoder::PhotoDecoder() : PhotoDecoder(decodePhoto) { }

PhotoDecoder::PhotoDecoder(Decode decode) : m_decode(std::move(decode))
{
    m_thread.setMaxThreadCount(1);
    m_thread.setExpiryTimeout(0); // A thread that waited for more work would wake up to end.
}

QImage PhotoDecoder::image(std::string bytes, const std::stop_token& stop)
{
    const auto outcome = std::make_shared<Outcome>();
    m_thread.start([this, outcome, stop, bytes = std::move(bytes)] {
        QImage image = stop.stop_requested() ? QImage{} : m_decode(bytes);
        {
            const std::lock_guard lock{outcome->mutex};
            outcome->image = std::move(image);
        }
        outcome->changed.notify_all();
    });
    std::unique_lock lock{outcome->mutex};
    outcome->changed.wait(lock, stop, [&] { return outcome->image.has_value(); });
    return std::move(outcome->image).value_or(QImage{});
}

} // namespace skyvane
