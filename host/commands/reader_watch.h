#pragma once

#include "platform/files/descriptor.h"

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace skyvane {

/// Tells when nobody reads any more what goes out by this descriptor: the other end of its pipe is closed, or
/// its terminal is. A file has no reader to lose. Costs nothing while it waits.
class ReaderWatch {
public:
    ReaderWatch(int descriptor, std::function<void()> gone);

private:
    Files::Descriptor m_events;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace skyvane
