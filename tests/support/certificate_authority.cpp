#include "tests/support/certificate_authority.h"

#include <openssl/bio.h>
#include <openssl/ec.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509v3.h>

#include <cstdint>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace skyvane::test {

namespace {

constexpr long day = 24L * 60 * 60;

/// Seconds from now.
struct Validity {
    long from;
    long until;
};

template <class Result>
Result require(Result result)
{
    if (!result)
        throw std::runtime_error("no certificate could be made");
    return result;
}

void addExtension(X509* certificate, X509* issuer, int kind, const std::string& value)
{
    X509V3_CTX context;
    X509V3_set_ctx(&context, issuer, certificate, nullptr, nullptr, 0);
    X509_EXTENSION* extension = require(X509V3_EXT_conf_nid(nullptr, &context, kind, value.c_str()));
    X509_add_ext(certificate, extension, -1);
    X509_EXTENSION_free(extension);
}

/// A certificate without extensions and signature.
ServerCertificate blank(std::string_view commonName, Validity validity)
{
    ServerCertificate made{
        .certificate{require(X509_new()), X509_free},
        .key{require(EVP_EC_gen("P-256")), EVP_PKEY_free},
    };
    std::uint32_t serial = 0;
    require(RAND_bytes(reinterpret_cast<unsigned char*>(&serial), sizeof serial) == 1);
    X509* certificate = made.certificate.get();
    X509_set_version(certificate, X509_VERSION_3);
    ASN1_INTEGER_set_uint64(X509_get_serialNumber(certificate), serial);
    X509_gmtime_adj(X509_getm_notBefore(certificate), validity.from);
    X509_gmtime_adj(X509_getm_notAfter(certificate), validity.until);
    X509_set_pubkey(certificate, made.key.get());
    X509_NAME_add_entry_by_NID(X509_get_subject_name(certificate), NID_commonName, MBSTRING_UTF8,
        reinterpret_cast<const unsigned char*>(commonName.data()), static_cast<int>(commonName.size()), -1,
        0);
    return made;
}

void sign(const ServerCertificate& made, const ServerCertificate& issuer)
{
    X509_set_issuer_name(made.certificate.get(), X509_get_subject_name(issuer.certificate.get()));
    require(X509_sign(made.certificate.get(), issuer.key.get(), EVP_sha256()) > 0);
}

ServerCertificate makeAuthority(const std::string& name)
{
    ServerCertificate made = blank(name, {.from = -day, .until = day});
    X509* certificate = made.certificate.get();
    addExtension(certificate, certificate, NID_basic_constraints, "critical,CA:TRUE");
    addExtension(certificate, certificate, NID_key_usage, "critical,keyCertSign");
    addExtension(certificate, certificate, NID_subject_key_identifier, "hash");
    sign(made, made);
    return made;
}

/// Signed by itself when there is no issuer.
ServerCertificate makeServerCertificate(
    const std::vector<std::string>& hosts, Validity validity, const ServerCertificate* issuer)
{
    ServerCertificate made = blank(hosts.front(), validity);
    const ServerCertificate& signer = issuer != nullptr ? *issuer : made;
    std::string names;
    for (const std::string& host : hosts)
        names += (names.empty() ? "DNS:" : ",DNS:") + host;
    addExtension(made.certificate.get(), signer.certificate.get(), NID_subject_alt_name, names);
    sign(made, signer);
    return made;
}

} // namespace

CertificateAuthority::CertificateAuthority(std::filesystem::path file)
    : m_file(std::move(file)), m_own(makeAuthority(m_file.stem()))
{
    const std::shared_ptr<BIO> memory{require(BIO_new(BIO_s_mem())), BIO_free};
    require(PEM_write_bio_X509(memory.get(), m_own.certificate.get()) == 1);
    char* text = nullptr;
    const long length = BIO_get_mem_data(memory.get(), &text);
    std::ofstream{m_file, std::ios::binary}.write(text, length);
}

void CertificateAuthority::linkIn(const std::filesystem::path& folder) const
{
    std::ostringstream name;
    name << std::hex << std::setw(8) << std::setfill('0') << X509_subject_name_hash(m_own.certificate.get())
         << ".0";
    std::filesystem::remove(folder / name.str());
    std::filesystem::create_symlink(std::filesystem::absolute(m_file), folder / name.str());
}

ServerCertificate CertificateAuthority::issue(const std::vector<std::string>& hosts) const
{
    return makeServerCertificate(hosts, {.from = -day, .until = day}, &m_own);
}

ServerCertificate CertificateAuthority::issueExpired(const std::vector<std::string>& hosts) const
{
    return makeServerCertificate(hosts, {.from = -2 * day, .until = -day}, &m_own);
}

ServerCertificate CertificateAuthority::selfSigned(const std::vector<std::string>& hosts)
{
    return makeServerCertificate(hosts, {.from = -day, .until = day}, nullptr);
}

} // namespace skyvane::test
