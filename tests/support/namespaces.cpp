#include "tests/support/namespaces.h"

#include <net/if.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <string>
#include <system_error>

namespace skyvane::test {

namespace {

void require(bool succeeded, const std::string& action)
{
    if (!succeeded)
        throw std::system_error{errno, std::generic_category(), action};
}

/// As the same user, who may do in there what only an administrator may outside.
void enterOwnUserNamespace()
{
    const std::string user = std::to_string(getuid());
    const std::string group = std::to_string(getgid());
    require(unshare(CLONE_NEWUSER | CLONE_NEWNS | CLONE_NEWNET) == 0, "unshare");
    std::ofstream{"/proc/self/setgroups"} << "deny";
    std::ofstream{"/proc/self/uid_map"} << user + " " + user + " 1";
    std::ofstream{"/proc/self/gid_map"} << group + " " + group + " 1";
}

void bringLoopbackUp()
{
    const int socket = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    ifreq device{};
    device.ifr_name[0] = 'l';
    device.ifr_name[1] = 'o';
    device.ifr_flags = IFF_UP;
    const bool isUp = ioctl(socket, SIOCSIFFLAGS, &device) == 0;
    close(socket);
    require(isUp, "lo");
}

} // namespace

void enterOwnNamespaces(const std::vector<BoundFile>& files)
{
    if (unshare(CLONE_NEWNS | CLONE_NEWNET) != 0)
        enterOwnUserNamespace();
    require(mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0, "mount /");
    for (const BoundFile& file : files)
        require(mount(file.standIn.c_str(), file.path.c_str(), nullptr, MS_BIND, nullptr) == 0,
            "mount " + file.path.string());
    bringLoopbackUp();
}

} // namespace skyvane::test
