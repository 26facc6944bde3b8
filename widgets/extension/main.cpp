#include "platform/files/programs.h"
#include "platform/net/url_session.h"
#include "platform/text/localized.h"
#include "widgets/extension/confinement.h"
#include "widgets/extension/serve.h"

#include <malloc.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>

/// GnuTLS comes along with the HTTP library, for protocols that are not spoken here; it asks this function,
/// which programs may define, before it prepares itself at every start (`GNUTLS_SKIP_GLOBAL_INIT` in its
/// header).
// NOLINTNEXTLINE(bugprone-reserved-identifier,cert-dcl37-c,cert-dcl51-cpp)
extern "C" [[gnu::used, gnu::visibility("default")]] int _gnutls_global_init_skip()
{
    return 1;
}

namespace {

/// One hostile answer may take a hundred times what the others do, and the host may keep the process for
/// weeks.
void holdLittleMemory()
{
    constexpr int large = 1 << 20; // Bytes.
    mallopt(M_MMAP_THRESHOLD, large);
    mallopt(M_ARENA_MAX, 1); // Threads hardly ever allocate at the same time.
}

} // namespace

int main(int argumentCount, char**)
{
    if (argumentCount > 1) {
        std::fputs("skyvane-widgets: takes no arguments; it is started by a widget host\n", stderr);
        return 2;
    }
    std::signal(SIGPIPE, SIG_IGN);
    holdLittleMemory();
    // Two folders below the prefix, as in a build tree.
    const auto prefix = skyvane::Programs::ownFolder().parent_path().parent_path();
    skyvane::useCatalogues(skyvane::Programs::catalogues(prefix));
    skyvane::Extension::confine(); // Where the kernel does not, the extension serves all the same.
    skyvane::Extension::serve(STDIN_FILENO, STDOUT_FILENO, {.transport = skyvane::UrlSession{}});
    return 0;
}
