#pragma once

#include <exception>
#include <string>
#include <utility>

namespace skyvane {

/// No source answered; the text says what went wrong at the last one.
struct FetchError : std::exception {
    explicit FetchError(std::string text) : message(std::move(text)) { }

    std::string message;

    const std::string& errorDescription() const { return message; }
    const char* what() const noexcept override { return message.c_str(); }
};

} // namespace skyvane
