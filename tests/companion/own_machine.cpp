#include "tests/companion/own_machine.h"

#include "tests/support/service_hosts.h"

#include <unistd.h>

#include <fstream>
#include <string>

namespace skyvane::test {

OwnMachine& OwnMachine::instance()
{
    static auto* const machine = new OwnMachine; // Owned by the test framework.
    return *machine;
}

void OwnMachine::SetUp()
{
    m_scratch.emplace();
    const std::string user = std::to_string(getuid()) + ":" + std::to_string(getgid());
    bind("/etc/passwd", "tester:x:" + user + "::" + home().string() + ":/bin/sh\n");
    std::string names = "127.0.0.1 localhost";
    for (const std::string& host : serviceHosts())
        names += " " + host;
    bind("/etc/hosts", names + "\n");
    bind("/etc/nsswitch.conf", "passwd: files\nhosts: files\n");
    bind("/etc/ssl/certs/ca-certificates.crt", "");
    enterOwnNamespaces(m_files);
    std::filesystem::create_directory(home());
}

void OwnMachine::bind(const std::filesystem::path& file, const std::string& content)
{
    std::ofstream{standIn(file)} << content;
    m_files.push_back({.path = file, .standIn = standIn(file)});
}

} // namespace skyvane::test
