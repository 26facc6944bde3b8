#include "widgets/extension/run.h"

#include "core/feed/sources.h"
#include "platform/files/files.h"
#include "platform/files/programs.h"
#include "platform/net/url_session.h"
#include "platform/pinned.h"
#include "platform/text/localized.h"
#include "widgets/extension/connector.h"
#include "widgets/extension/serve.h"

#include <malloc.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdint>
#include <optional>
#include <stop_token>
#include <utility>
#include <vector>

namespace skyvane::Extension {

namespace {

constexpr std::uint16_t https = 443;

/// One hostile answer may take a hundred times what the others do, and the host may keep the process for
/// weeks.
void holdLittleMemory()
{
    constexpr int large = 1 << 20; // Bytes.
    mallopt(M_MMAP_THRESHOLD, large);
    mallopt(M_ARENA_MAX, 1); // Threads hardly ever allocate at the same time.
}

/// A process that is stopped goes on when its host dies, and so finds the end of its input. To one that runs
/// the signal means nothing, also when it was but a thread of the host's that ended.
void wakeAtTheEndOfTheHost()
{
    prctl(PR_SET_PDEATHSIG, SIGCONT, 0, 0, 0);
}

/// The sources and, where there is one, the user's proxy.
std::vector<Destination> destinations(const std::optional<Proxy>& proxy)
{
    std::vector<Destination> all;
    for (const ADSB::Source& source : ADSB::sources())
        all.push_back({.host = source.name, .port = https});
    if (proxy)
        all.push_back({.host = proxy->host, .port = proxy->port});
    return all;
}

} // namespace

int run(Unlisted unlisted)
{
    std::signal(SIGPIPE, SIG_IGN);
    holdLittleMemory();
    wakeAtTheEndOfTheHost();
    const auto proxy = Proxy::ofEnvironment();
    const Connector connector = Connector::start(destinations(proxy), STDIN_FILENO);
    // What the confinement leaves no way to: the user database and, two folders below the prefix as in a
    // build tree, the catalogues.
    const Pinned<HomeFolder> home{{.path = Files::homeFolder()}};
    useCatalogues(Programs::catalogues(Programs::ownFolder().parent_path().parent_path()));
    const bool isConfined = confine(connector.channel(), unlisted);
    const auto dial
        = [&](const Destination& destination, std::chrono::steady_clock::time_point deadline,
              const std::stop_token& stop) { return connector.dial(destination, deadline, stop); };
    const UrlSession session = isConfined ? UrlSession{Dialer{.dial = dial, .proxy = proxy}}
                                          : UrlSession{}; // It serves all the same.
    serve(STDIN_FILENO, STDOUT_FILENO, {.transport = session});
    return 0;
}

} // namespace skyvane::Extension
