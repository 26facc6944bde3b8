#include "widgets/extension/shut_doors.h"

#include "platform/sandbox/system_call_filter.h"

#include <fcntl.h>
#include <linux/sched.h>
#include <linux/sockios.h>
#include <sys/ioctl.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <initializer_list>
#include <utility>

namespace skyvane::Extension::ShutDoors {

namespace {

using Answer = SystemCallFilter::Answer;

constexpr Answer refused = SystemCallFilter::failure(EPERM);

constexpr std::array always{
    // Files and folders.
    SYS_linkat,
    SYS_symlinkat,
    SYS_unlinkat,
    SYS_renameat2,
    SYS_mkdirat,
    SYS_mknodat,
    SYS_truncate,
    SYS_ftruncate,
    SYS_fallocate,
    SYS_name_to_handle_at,
    SYS_open_by_handle_at,
    SYS_memfd_create,
    SYS_memfd_secret,
    SYS_flock,
    SYS_mq_open,
    SYS_mq_unlink,
    // What is written about them.
    SYS_fchmod,
    SYS_fchmodat,
    SYS_fchown,
    SYS_fchownat,
    SYS_utimensat,
    SYS_setxattr,
    SYS_lsetxattr,
    SYS_fsetxattr,
    SYS_removexattr,
    SYS_lremovexattr,
    SYS_fremovexattr,
    // Programs and processes.
    SYS_execve,
    SYS_execveat,
    SYS_ptrace,
    SYS_process_vm_readv,
    SYS_process_vm_writev,
    SYS_process_madvise,
    SYS_kcmp,
    SYS_pidfd_open,
    SYS_pidfd_getfd,
    SYS_pidfd_send_signal,
    SYS_tkill,
    SYS_rt_sigqueueinfo,
    SYS_rt_tgsigqueueinfo,
    SYS_unshare,
    SYS_setns,
    SYS_personality,
    SYS_setpriority,
    SYS_ioprio_set,
    SYS_sched_setattr,
    SYS_sched_setaffinity,
    SYS_sched_setparam,
    SYS_sched_setscheduler,
    SYS_setpgid,
    SYS_shmget,
    SYS_shmat,
    SYS_shmctl,
    SYS_semget,
    SYS_semop,
    SYS_semctl,
    SYS_msgget,
    SYS_msgsnd,
    SYS_msgctl,
    // Being called.
    SYS_listen,
    SYS_accept,
    SYS_accept4,
    // The machine.
    SYS_mount,
    SYS_umount2,
    SYS_move_mount,
    SYS_mount_setattr,
    SYS_open_tree,
    SYS_fsopen,
    SYS_fsmount,
    SYS_pivot_root,
    SYS_chroot,
    SYS_swapon,
    SYS_swapoff,
    SYS_reboot,
    SYS_kexec_load,
    SYS_init_module,
    SYS_finit_module,
    SYS_delete_module,
    SYS_bpf,
    SYS_perf_event_open,
    SYS_userfaultfd,
    SYS_keyctl,
    SYS_add_key,
    SYS_request_key,
    SYS_sethostname,
    SYS_setdomainname,
    SYS_settimeofday,
    SYS_clock_settime,
    SYS_clock_adjtime,
    SYS_adjtimex,
    SYS_acct,
    SYS_quotactl,
    SYS_syslog,
    SYS_landlock_create_ruleset,
#ifdef SYS_open // Of older architectures.
    SYS_creat,
    SYS_link,
    SYS_symlink,
    SYS_unlink,
    SYS_rename,
    SYS_renameat,
    SYS_mkdir,
    SYS_rmdir,
    SYS_mknod,
    SYS_chmod,
    SYS_chown,
    SYS_lchown,
    SYS_utime,
    SYS_utimes,
    SYS_futimesat,
    SYS_fork,
    SYS_vfork,
    SYS_iopl,
    SYS_ioperm,
    SYS_modify_ldt,
    SYS_kexec_file_load,
#endif
};

/// The libraries know another way.
constexpr std::array unheardOf{
    SYS_clone3, SYS_openat2, SYS_io_uring_setup, SYS_io_uring_enter, SYS_io_uring_register};

void refuseOpeningForMoreThanReading(SystemCallFilter& filter)
{
    for (const std::uint32_t flag :
        std::initializer_list<std::uint32_t>{O_WRONLY, O_RDWR, O_CREAT, O_TRUNC}) {
        filter.answer(SYS_openat, {{.argument = 2, .value = flag, .mask = flag}}, refused);
#ifdef SYS_open
        filter.answer(SYS_open, {{.argument = 1, .value = flag, .mask = flag}}, refused);
#endif
    }
}

/// But for the client's end, of which the connector takes care.
void refuseOtherProcesses(SystemCallFilter& filter)
{
    const auto self = static_cast<std::uint32_t>(getpid());
    const auto client = static_cast<std::uint32_t>(getppid());
    filter.answer(SYS_clone, {{.argument = 0, .value = 0, .mask = CLONE_THREAD}}, refused);
    filter.answer(SYS_tgkill, {{.argument = 0, .value = self}}, Answer::allowed);
    filter.answer(SYS_tgkill, {}, refused);
    filter.answer(
        SYS_kill, {{.argument = 0, .value = client}, {.argument = 1, .value = SIGKILL}}, Answer::allowed);
    filter.answer(SYS_kill, {}, refused);
    filter.answer(SYS_prlimit64, {{.argument = 0, .value = 0}}, Answer::allowed);
    filter.answer(SYS_prlimit64, {}, refused);
    for (const std::uint32_t command : std::initializer_list<std::uint32_t>{F_SETOWN, F_SETOWN_EX, F_SETSIG})
        filter.answer(SYS_fcntl, {{.argument = 1, .value = command}}, refused);
    for (const std::uint32_t request :
        std::initializer_list<std::uint32_t>{FIOSETOWN, SIOCSPGRP, TIOCSTI, TIOCLINUX})
        filter.answer(SYS_ioctl, {{.argument = 1, .value = request}}, refused);
    filter.answer(SYS_mmap,
        {{.argument = 3, .value = MAP_SHARED | MAP_ANONYMOUS, .mask = MAP_SHARED | MAP_ANONYMOUS}}, refused);
}

} // namespace

bool shut()
{
    constexpr int newestConsidered = 450;
    SystemCallFilter filter;
    filter.answer(always, refused);
    refuseOpeningForMoreThanReading(filter);
    refuseOtherProcesses(filter);
    filter.answer(unheardOf, SystemCallFilter::failure(ENOSYS));
    filter.answerAbove(newestConsidered, SystemCallFilter::failure(ENOSYS));
    return std::move(filter).enforce(Answer::allowed);
}

} // namespace skyvane::Extension::ShutDoors
