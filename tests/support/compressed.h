#pragma once

#include <string>
#include <string_view>

namespace skyvane::test {

std::string gzipped(std::string_view bytes);
std::string deflated(std::string_view bytes);
std::string brotliCompressed(std::string_view bytes);

/// A gzip stream of zeros without an end: how it begins, and what may follow any number of times, 8 × 258
/// zeros each time.
struct EndlessGzip {
    std::string beginning;
    std::string period;

    /// The beginning of the stream, at least so many bytes.
    std::string first(std::size_t size) const;
};
EndlessGzip endlessGzip();

} // namespace skyvane::test
