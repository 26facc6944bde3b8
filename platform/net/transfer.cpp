#include "platform/net/transfer.h"

#include "platform/net/content_coding.h"
#include "platform/net/options.h"
#include "platform/net/outcome.h"
#include "platform/pinned.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <utility>

namespace skyvane {

namespace {

using namespace std::chrono_literals;

constexpr std::size_t largestBody = std::size_t{8} << 20;
constexpr std::size_t largestHeaders = std::size_t{256}
    << 10; ///< Of all answers on the way, redirects included.
constexpr long mostRedirects = 10;
constexpr long longestRest = 30; ///< Seconds between two transfers on a connection; not the machine's sleep.

std::chrono::milliseconds timeoutOf(const URLRequest& request)
{
    return std::clamp(request.timeout, 1ms, Transfer::longest); // Zero would mean none.
}

std::string defaultUserAgent()
{
    return std::string{program_invocation_short_name}
    + "/" SKYVANE_VERSION " (+mailto:" SKYVANE_CONTACT_EMAIL ")";
}

} // namespace

Transfer::Transfer(
    const URLRequest& request, const Connections& connections, const Setting& setting, std::stop_token stop)
    : m_setting(setting)
    , m_stop(std::move(stop))
    , m_deadline(std::chrono::steady_clock::now() + timeoutOf(request))
    , m_multi(connections.handle.get())
{
    if (m_multi == nullptr || m_easy == nullptr)
        throw TransferError{TransferProblem::other, curl_easy_strerror(CURLE_FAILED_INIT)};
    set(m_easy.get(), CURLOPT_ERRORBUFFER, m_words.data());
    set(m_easy.get(), CURLOPT_URL, request.url.text().c_str());
    set(m_easy.get(), CURLOPT_PATH_AS_IS, 1L);
    setLimits(request);
    setTrust(connections.trust);
    setHeaders(request.headers);
    setReceivers();
    if (m_setting.dialer != nullptr)
        connectBy(*m_setting.dialer);
    if (const Network* network = Pinned<Network>::current())
        confineTo(*network);
    if (const CURLMcode outcome = curl_multi_add_handle(m_multi, m_easy.get()); outcome != CURLM_OK)
        throw TransferError{TransferProblem::other, curl_multi_strerror(outcome)};
}

void Transfer::setLimits(const URLRequest& request)
{
    set(m_easy.get(), CURLOPT_TIMEOUT_MS, static_cast<long>(timeoutOf(request).count()));
    set(m_easy.get(), CURLOPT_PROTOCOLS_STR, "https");
    set(m_easy.get(), CURLOPT_REDIR_PROTOCOLS_STR, "https");
    set(m_easy.get(), CURLOPT_FOLLOWLOCATION, 1L);
    set(m_easy.get(), CURLOPT_MAXREDIRS, mostRedirects);
    set(m_easy.get(), CURLOPT_MAXAGE_CONN, longestRest);
    set(m_easy.get(), CURLOPT_NOSIGNAL, 1L);
    set(m_easy.get(), CURLOPT_QUICK_EXIT, 1L); // A name look-up under way is left behind, not waited for.
}

void Transfer::setTrust(Trust trust)
{
    const Authorities known = Authorities::current();
    const bool readsBundle = trust == Trust::folderAndBundle || known.folder.empty();
    const auto orNone = [](const std::string& path) { return path.empty() ? nullptr : path.c_str(); };
    set(m_easy.get(), CURLOPT_CAPATH, orNone(known.folder));
    set(m_easy.get(), CURLOPT_CAINFO, readsBundle ? orNone(known.bundle) : nullptr);
    set(m_easy.get(), CURLOPT_SSL_VERIFYPEER, 1L);
    set(m_easy.get(), CURLOPT_SSL_VERIFYHOST, 2L);
    // A resumed TLS session brings no certificate: what was verified once would be trusted for days.
    set(m_easy.get(), CURLOPT_SSL_SESSIONID_CACHE, 0L);
    m_hasUnreadBundle = !readsBundle && !known.bundle.empty();
}

void Transfer::setHeaders(const std::vector<HTTPHeader>& headers)
{
    set(m_easy.get(), CURLOPT_ACCEPT_ENCODING, ContentCoding::accepted);
    // The library would take one that ends before its checksum.
    set(m_easy.get(), CURLOPT_HTTP_CONTENT_DECODING, 0L);
    set(m_easy.get(), CURLOPT_USERAGENT,
        defaultUserAgent().c_str()); // A header of the same name replaces it.
    for (const HTTPHeader& header : headers)
        append(m_headers, header.value.empty() ? header.name + ";" : header.name + ": " + header.value);
    set(m_easy.get(), CURLOPT_HTTPHEADER, m_headers.get());
}

void Transfer::setReceivers()
{
    using Receiver = std::size_t (*)(char*, std::size_t, std::size_t, void*);
    const Receiver receiveHeader = [](char*, std::size_t, std::size_t length, void* transfer) noexcept {
        auto& self = *static_cast<Transfer*>(transfer);
        self.m_headerBytes += length;
        if (self.m_headerBytes <= largestHeaders)
            return length;
        self.m_refusal = "The answer's headers are longer than 256 KiB";
        return std::size_t{0};
    };
    const Receiver receiveBody = [](char* bytes, std::size_t, std::size_t length, void* transfer) noexcept {
        auto& self = *static_cast<Transfer*>(transfer);
        if (self.m_body.empty())
            self.reserveBody();
        if (length <= largestBody - self.m_body.size()) {
            self.m_body.append(bytes, length);
            return length;
        }
        self.m_refusal = "The answer is longer than 8 MiB";
        return std::size_t{0};
    };
    set(m_easy.get(), CURLOPT_HEADERFUNCTION, receiveHeader);
    set(m_easy.get(), CURLOPT_HEADERDATA, this);
    set(m_easy.get(), CURLOPT_WRITEFUNCTION, receiveBody);
    set(m_easy.get(), CURLOPT_WRITEDATA, this);
}

/// For as much as is announced, and some more: a parser may want it to read the body where it stands.
void Transfer::reserveBody()
{
    constexpr curl_off_t spare = 64;
    constexpr curl_off_t most = curl_off_t{8} << 20; // Bytes; who announces more may not mean it.
    curl_off_t length = 0;
    curl_easy_getinfo(m_easy.get(), CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &length);
    if (length > 0 && length <= most)
        m_body.reserve(static_cast<std::size_t>(length + spare));
}

void Transfer::confineTo(const Network& network)
{
    set(m_easy.get(), CURLOPT_PROXY, "");
    for (const std::string& entry : network.connectTo)
        append(m_connectTo, entry);
    append(m_connectTo, "::127.0.0.1:1"); // Every other host: a port that refuses.
    set(m_easy.get(), CURLOPT_CONNECT_TO, m_connectTo.get());
}

std::optional<CURLcode> Transfer::run()
{
    constexpr int untilWoken = 60'000; // Milliseconds; the library's own timers end the wait earlier.
    const std::stop_callback wake{m_stop, [this] { curl_multi_wakeup(m_multi); }};
    while (!m_stop.stop_requested()) {
        int running = 1;
        CURLMcode state = CURLM_OK;
        if (m_turn.emplace(m_setting.processors, m_stop))
            state = curl_multi_perform(m_multi, &running);
        m_turn.reset();
        if (running == 0 && state == CURLM_OK)
            return outcome();
        if (state == CURLM_OK)
            state = curl_multi_poll(m_multi, nullptr, 0, untilWoken, nullptr);
        if (state != CURLM_OK)
            throw TransferError{TransferProblem::other, curl_multi_strerror(state)};
    }
    return std::nullopt;
}

std::optional<CURLcode> Transfer::outcome()
{
    int left = 0;
    const CURLMsg* message = curl_multi_info_read(m_multi, &left);
    if (message == nullptr)
        return CURLE_FAILED_INIT;
    const CURLcode outcome = message->data.result;
    if (outcome == CURLE_OK && announcesAbsurdLength())
        m_refusal = "The answer announces a length that is none";
    if (m_refusal != nullptr)
        return CURLE_FILESIZE_EXCEEDED;
    return endsWithItsConnection(outcome) ? CURLE_OK : outcome;
}

/// Whether the library has passed over a length that it could not read.
bool Transfer::announcesAbsurdLength() const
{
    curl_off_t length = 0;
    curl_easy_getinfo(m_easy.get(), CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &length);
    return length < 0 && !headers("Content-Length").empty() && headers("Transfer-Encoding").empty();
}

/// Whether this is an answer of no announced length, whose connection ended without TLS's goodbye. Newer
/// versions of the library call that a failure; whether such an answer is whole is for its reader to say.
bool Transfer::endsWithItsConnection(CURLcode outcome) const
{
    if (outcome != CURLE_RECV_ERROR || m_body.empty())
        return false;
    long systemError = 0;
    long version = CURL_HTTP_VERSION_NONE;
    curl_off_t length = 0;
    curl_easy_getinfo(m_easy.get(), CURLINFO_OS_ERRNO, &systemError);
    curl_easy_getinfo(m_easy.get(), CURLINFO_HTTP_VERSION, &version);
    curl_easy_getinfo(m_easy.get(), CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &length);
    const bool isFramed = length >= 0 || !headers("Transfer-Encoding").empty()
        || (version != CURL_HTTP_VERSION_1_0 && version != CURL_HTTP_VERSION_1_1);
    return systemError == 0 && !isFramed;
}

bool Transfer::deservesMoreTrust(CURLcode outcome) const
{
    return outcome == CURLE_PEER_FAILED_VERIFICATION && m_hasUnreadBundle;
}

TransferError Transfer::error(CURLcode outcome) const
{
    if (m_refusal != nullptr)
        return {TransferProblem::tooLarge, m_refusal};
    if (m_undialled)
        return *m_undialled;
    long systemError = 0;
    curl_easy_getinfo(m_easy.get(), CURLINFO_OS_ERRNO, &systemError);
    return {problemOf(outcome, systemError),
        m_words.front() != '\0' ? m_words.data() : curl_easy_strerror(outcome)};
}

int Transfer::socket() const
{
    curl_socket_t socket = CURL_SOCKET_BAD;
    curl_easy_getinfo(m_easy.get(), CURLINFO_ACTIVESOCKET, &socket);
    return socket;
}

/// All lines of that name in the last answer.
std::string Transfer::headers(const char* name) const
{
    std::string all;
    curl_header* header = nullptr;
    for (std::size_t index = 0;
         curl_easy_header(m_easy.get(), name, index, CURLH_HEADER, -1, &header) == CURLHE_OK; ++index)
        all.append(all.empty() ? "" : ",").append(header->value);
    return all;
}

URLResponse Transfer::takeResponse()
{
    long status = 0;
    curl_easy_getinfo(m_easy.get(), CURLINFO_RESPONSE_CODE, &status);
    curl_off_t wait = 0; // Seconds, also where the server named a date.
    curl_easy_getinfo(m_easy.get(), CURLINFO_RETRY_AFTER, &wait);
    constexpr curl_off_t longestWait = 7 * 24 * 60 * 60;
    std::optional<std::chrono::seconds> retryAfter;
    if (wait > 0)
        retryAfter = std::chrono::seconds{std::min(wait, longestWait)};
    return {
        .status = static_cast<int>(status),
        .body = ContentCoding::undone(std::move(m_body), headers("Content-Encoding"), largestBody),
        .retryAfter = retryAfter,
    };
}

} // namespace skyvane
