#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Compression of bodies.
namespace skyvane::ContentCoding {

/// What may come, as "Accept-Encoding" says it.
inline constexpr const char* accepted = "gzip, deflate, br";

/// The body as it was before these codings, listed as "Content-Encoding" has them. Each must be known and end
/// where the body does, with its checksum where it has one; the body is of so many bytes at most, on the way,
/// too. Throws `TransferError`. An empty body is one whatever the codings.
std::string undone(std::string body, std::string_view codings, std::size_t most);

} // namespace skyvane::ContentCoding
