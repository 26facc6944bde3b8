#include "core/enrichment/user_agent.h"

namespace skyvane {

HTTPHeader userAgent()
{
    return {.name = "User-Agent", .value = "Skyvane/1.1 (+mailto:" SKYVANE_CONTACT_EMAIL ")"};
}

} // namespace skyvane
