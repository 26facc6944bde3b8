#pragma once

#include "platform/net/transfer_error.h"

#include <exception>
#include <optional>
#include <string>
#include <utility>

namespace skyvane {

/// What a source was found wanting in.
enum class FetchProblem {
    noSource, ///< None could be asked.
    transfer,
    status, ///< Of HTTP, any but 200.
    notJSON,
    shape, ///< JSON, but not what a source answers.
    other,
};

/// Tells the kinds of a failure apart, and what it was to the letter.
struct FetchCause {
    FetchProblem problem = FetchProblem::noSource;
    std::optional<TransferProblem> transfer{}; ///< Present when the transfer is the problem.
    std::string details{}; ///< What a library said, in its words; may be empty.
    std::optional<int> status{}; ///< Of HTTP, where that is the problem.

    bool operator==(const FetchCause&) const = default;
};

/// No source answered; the text says what went wrong at the last one, in the user's words.
struct FetchError : std::exception {
    explicit FetchError(std::string text, FetchCause why = {})
        : message(std::move(text)), cause(std::move(why))
    {
    }

    std::string message;
    FetchCause cause;

    const std::string& errorDescription() const { return message; }
    const char* what() const noexcept override { return message.c_str(); }
};

} // namespace skyvane
