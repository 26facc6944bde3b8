#include "widgets/extension/shut_doors.h"

#include <array>

namespace skyvane::Extension::ShutDoors {

std::span<const char* const> forbidden()
{
    static constexpr std::array names{
        // Files and folders.
        "creat",
        "link",
        "linkat",
        "symlink",
        "symlinkat",
        "unlink",
        "unlinkat",
        "rename",
        "renameat",
        "renameat2",
        "mkdir",
        "mkdirat",
        "rmdir",
        "mknod",
        "mknodat",
        "truncate",
        "ftruncate",
        "fallocate",
        "open_by_handle_at",
        "memfd_create",
        "memfd_secret",
        // What is written about them.
        "chmod",
        "fchmod",
        "fchmodat",
        "chown",
        "fchown",
        "lchown",
        "fchownat",
        "utime",
        "utimes",
        "futimesat",
        "utimensat",
        "setxattr",
        "lsetxattr",
        "fsetxattr",
        "removexattr",
        "lremovexattr",
        "fremovexattr",
        // Programs and processes.
        "execve",
        "execveat",
        "fork",
        "vfork",
        "ptrace",
        "process_vm_readv",
        "process_vm_writev",
        "process_madvise",
        "kcmp",
        "pidfd_open",
        "pidfd_getfd",
        "pidfd_send_signal",
        "tkill",
        "rt_sigqueueinfo",
        "rt_tgsigqueueinfo",
        "unshare",
        "setns",
        "personality",
        // Being called, and called back.
        "listen",
        "accept",
        "accept4",
        // The machine.
        "mount",
        "umount2",
        "move_mount",
        "mount_setattr",
        "open_tree",
        "fsopen",
        "fsmount",
        "pivot_root",
        "chroot",
        "swapon",
        "swapoff",
        "reboot",
        "kexec_load",
        "kexec_file_load",
        "init_module",
        "finit_module",
        "delete_module",
        "bpf",
        "perf_event_open",
        "userfaultfd",
        "keyctl",
        "add_key",
        "request_key",
        "sethostname",
        "setdomainname",
        "settimeofday",
        "clock_settime",
        "clock_adjtime",
        "adjtimex",
        "acct",
        "quotactl",
        "iopl",
        "ioperm",
        "syslog",
    };
    return names;
}

std::span<const char* const> unheardOf()
{
    static constexpr std::array names{
        "clone3", "openat2", "io_uring_setup", "io_uring_enter", "io_uring_register"};
    return names;
}

std::span<const int> forbiddenWithoutName()
{
    static constexpr int fchmodat2 = 452;
    static constexpr int setxattrat = 463;
    static constexpr int removexattrat = 466;
    static constexpr std::array calls{fchmodat2, setxattrat, removexattrat};
    return calls;
}

} // namespace skyvane::Extension::ShutDoors
