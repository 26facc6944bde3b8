#pragma once

#include <QImage>
#include <QThreadPool>

#include <functional>
#include <stop_token>
#include <string>
#include <string_view>

namespace skyvane {

/// Decodes photographs one after the other on a thread of its own. A decoding cannot be interrupted, but
/// whoever waits for it can give up; its result is dropped then.
class PhotoDecoder {
public:
    using Decode = std::function<QImage(std::string_view)>;

    /// The standard decoder is `decodePhoto`.
    PhotoDecoder();
    explicit PhotoDecoder(Decode decode);

    /// Null for what is no photograph, and at once when `stop` asks for it. Called from any thread but the
    /// event loop's.
    QImage image(std::string bytes, const std::stop_token& stop);

    /// Whether nothing is being decoded. The destructor waits for what is; a program that must not wait ends
    /// by `std::_Exit`, since the thread uses what an ordinary exit destroys.
    bool isIdle() { return m_thread.waitForDone(0); }

private:
    Decode m_decode;
    QThreadPool m_thread;
};

} // namespace skyvane
