#pragma once

#include <exception>
#include <stdexcept>
#include <string>

namespace skyvane {

/// Why a transfer brought no complete answer.
enum class TransferProblem {
    nameUnknown, ///< Looking up the server's name brought nothing, as it does without any network.
    noRoute,
    refused,
    timedOut,
    untrusted, ///< By the system's authorities, or the certificate is another server's or expired.
    insecure, ///< No TLS connection came about.
    cut,
    tooLarge,
    unreadable, ///< Not HTTP, or a body that cannot be decompressed.
    other,
};

/// One sentence in the user's language.
std::string description(TransferProblem problem);

/// The transfer failed before a complete answer was there; what() says why in the user's words.
struct TransferError : std::runtime_error {
    /// A failure of a transport that is not this library's; `words` are the user's.
    explicit TransferError(const std::string& words) : std::runtime_error(words) { }
    TransferError(TransferProblem why, const std::string& said);

    TransferProblem problem = TransferProblem::other;
    std::string details{}; ///< What the library said, in its words; may be empty.
};

/// The caller's stop token asked for it; not a failure.
struct CancellationError : std::exception {
    const char* what() const noexcept override { return "cancelled"; }
};

} // namespace skyvane
