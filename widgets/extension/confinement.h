#pragma once

namespace skyvane::Extension {

/// What becomes of a system call that is not on the list.
enum class Unlisted {
    refused, ///< It fails with EPERM.
    reported, ///< SIGSYS, for whoever looks whether the list is whole.
};

/// Sandbox of the decoder, the process that reads what strangers send. Gives up, for good and for every
/// thread to come, all but reading the files that it needs, computing, answering, and the connections that it
/// is handed. Only the system calls for that are left; the others fail with EPERM, or with ENOSYS where the
/// libraries know another way. Also bounds memory, CPU time and file size, and closes every descriptor but
/// the standard streams and `kept`. Call it before the first thread. False where the kernel filters no calls:
/// then it is bounded and nothing else. Without Landlock it reads every file of its user's.
bool confine(int kept = -1, Unlisted unlisted = Unlisted::refused);

/// Sandbox of the connector, which looks up names by whatever means this machine has: no program is started,
/// no file written, nobody listened to. Closes every descriptor but the standard ones and `kept`.
bool confineConnector(int kept);

} // namespace skyvane::Extension
