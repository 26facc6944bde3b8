#include "platform/net/outcome.h"

#include <cerrno>

namespace skyvane {

TransferProblem problemOf(CURLcode outcome, long systemError)
{
    switch (outcome) {
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_RESOLVE_PROXY:
        return TransferProblem::nameUnknown;
    case CURLE_COULDNT_CONNECT:
        return systemError == ECONNREFUSED ? TransferProblem::refused : TransferProblem::noRoute;
    case CURLE_OPERATION_TIMEDOUT:
        return TransferProblem::timedOut;
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_CACERT_BADFILE:
    case CURLE_SSL_ISSUER_ERROR:
    case CURLE_SSL_INVALIDCERTSTATUS:
        return TransferProblem::untrusted;
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_CIPHER:
    case CURLE_USE_SSL_FAILED:
        return TransferProblem::insecure;
    case CURLE_PARTIAL_FILE:
    case CURLE_GOT_NOTHING:
    case CURLE_SEND_ERROR:
    case CURLE_RECV_ERROR:
    case CURLE_HTTP2:
    case CURLE_HTTP2_STREAM:
        return TransferProblem::cut;
    case CURLE_FILESIZE_EXCEEDED:
#if LIBCURL_VERSION_NUM >= 0x080600
    case CURLE_TOO_LARGE:
#endif
    case CURLE_OUT_OF_MEMORY: // What older versions say of one header line of more than 100 KB.
        return TransferProblem::tooLarge;
    case CURLE_UNSUPPORTED_PROTOCOL:
    case CURLE_WEIRD_SERVER_REPLY:
    case CURLE_BAD_CONTENT_ENCODING:
        return TransferProblem::unreadable;
    default:
        return TransferProblem::other;
    }
}

} // namespace skyvane
