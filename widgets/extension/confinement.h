#pragma once

namespace skyvane::Extension {

/// Sandbox: gives up, for good and for every thread to come, what the extension never does: writing,
/// creating, removing or changing files, starting programs, looking into or signalling other processes,
/// listening on the network. Such a call fails with EPERM, or with ENOSYS where the libraries know another
/// way. Also bounds memory, CPU time and file size. Call it before the first thread. Whether the kernel took
/// the whole of it; what it did not take stays allowed, and /proc/PID/status says so.
bool confine();

} // namespace skyvane::Extension
