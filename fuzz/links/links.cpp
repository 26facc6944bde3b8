#include "companion/links/incoming_link.h"
#include "fuzz/fuzzer.h"

/// An address that somebody wants the companion to open.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace skyvane;
    const IncomingLink::Target target = IncomingLink::read(fuzz::text(data, size));
    if (const auto* problem = std::get_if<IncomingLink::Problem>(&target))
        fuzz::require(!IncomingLink::description(*problem).empty());
    if (const auto* aircraft = std::get_if<IncomingLink::OneAircraft>(&target)) {
        constexpr std::size_t longest = 8;
        constexpr std::string_view allowed = "~0123456789abcdefABCDEF";
        fuzz::require(!aircraft->hex.empty() && aircraft->hex.size() <= longest);
        fuzz::require(aircraft->hex.find_first_not_of(allowed) == std::string::npos);
        fuzz::require(IncomingLink::read("skyvane://aircraft/" + aircraft->hex) == target);
    }
    return 0;
}
