#include "core/enrichment/user_agent.h"

namespace skyvane {

HTTPHeader userAgent()
{
    return {.name = "User-Agent",
        .value = "Skyvane/" SKYVANE_MAJOR_MINOR_VERSION " (+mailto:" SKYVANE_CONTACT_EMAIL ")"};
}

} // namespace skyvane
