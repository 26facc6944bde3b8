#include "platform/net/content_coding.h"
#include "platform/net/transfer_error.h"

#include "fuzz/fuzzer.h"

#include <string>

/// A line with the codings, then the body.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace skyvane;
    constexpr std::size_t most = std::size_t{1} << 20;
    const std::string_view input = fuzz::text(data, size);
    const std::size_t line = input.find('\n');
    if (line == std::string_view::npos)
        return 0;
    try {
        const std::string body
            = ContentCoding::undone(std::string{input.substr(line + 1)}, input.substr(0, line), most);
        fuzz::require(body.size() <= most || body == input.substr(line + 1));
    } catch (const TransferError& error) {
        fuzz::require(
            error.problem == TransferProblem::unreadable || error.problem == TransferProblem::tooLarge);
    }
    return 0;
}
