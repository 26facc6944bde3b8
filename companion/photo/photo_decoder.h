#pragma once

#include <QImage>
#include <QThreadPool>

#include <functional>
#include <stop_token>
#include <string>
#include <string_view>

namespace skyvane {

/// Decodes photographs one after the other on a thread of its own. A decoder cannot be called off, so whoever
/// waits for one can; the decoding then goes on for nobody.
class PhotoDecoder {
public:
    using Decode = std::function<QImage(std::string_view)>;

    /// The standard decoder is `decodePhoto`.
    PhotoDecoder();
    explicit PhotoDecoder(Decode decode);

    /// Null for what is no photograph, and at once when `stop` asks for it. Called from any thread but the
    /// event loop's.
    QImage image(std::string bytes, const std::stop_token& stop);

    /// Whether nothing is decoded. To be asked before its end, which waits for what is: a program that is not
    /// to wait has to end by `std::_Exit`, since whatever the thread uses must be there as long as it runs.
    bool isIdle() { return m_thread.waitForDone(0); }

private:
    Decode m_decode;
    QThreadPool m_thread;
};

} // namespace skyvane
