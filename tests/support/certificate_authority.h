#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <openssl/types.h>

namespace skyvane::test {

/// A certificate with its private key.
struct ServerCertificate {
    std::shared_ptr<X509> certificate;
    std::shared_ptr<EVP_PKEY> key;
};

/// A certificate authority that nobody trusts who was not told its file.
class CertificateAuthority {
public:
    /// Writes its own certificate, PEM, to the file.
    explicit CertificateAuthority(std::filesystem::path file);

    const std::filesystem::path& file() const { return m_file; }

    /// Lets those who look for it in a folder of hashed names find it there.
    void linkIn(const std::filesystem::path& folder) const;

    ServerCertificate issue(const std::vector<std::string>& hosts) const;
    ServerCertificate issueExpired(const std::vector<std::string>& hosts) const;
    static ServerCertificate selfSigned(const std::vector<std::string>& hosts);

private:
    std::filesystem::path m_file;
    ServerCertificate m_own;
};

} // namespace skyvane::test
