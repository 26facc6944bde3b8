#pragma once

#include <fstream>
#include <iterator>
#include <string>

namespace skyvane::test {

/// Other content of the file of hosts' addresses, until the end of the scope. The file is this test program's
/// own.
class OwnHosts {
public:
    explicit OwnHosts(const std::string& content) { write(content); }
    ~OwnHosts() { write(m_before); }
    OwnHosts(const OwnHosts&) = delete;
    OwnHosts& operator=(const OwnHosts&) = delete;

private:
    static std::string read()
    {
        std::ifstream file{"/etc/hosts"};
        return {std::istreambuf_iterator<char>{file}, {}};
    }
    static void write(const std::string& content) { std::ofstream{"/etc/hosts"} << content; }

    std::string m_before = read();
};

} // namespace skyvane::test
