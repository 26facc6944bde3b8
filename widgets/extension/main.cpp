#include "widgets/extension/run.h"

#include <cstdio>

/// GnuTLS comes along with the HTTP library, for protocols that are not spoken here; it asks this function,
/// which programs may define, before it prepares itself at every start (`GNUTLS_SKIP_GLOBAL_INIT` in its
/// header).
// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
extern "C" [[gnu::used, gnu::visibility("default")]] int _gnutls_global_init_skip()
{
    return 1;
}

int main(int argumentCount, char**)
{
    if (argumentCount > 1) {
        std::fputs("skyvane-widgets: takes no arguments; it is started by a widget host\n", stderr);
        return 2;
    }
    return skyvane::Extension::run();
}
