#pragma once

#include <filesystem>
#include <vector>

namespace skyvane::test {

/// A file of the machine, and the one that is seen in its place.
struct BoundFile {
    std::filesystem::path path;
    std::filesystem::path standIn;
};

/// Moves this process, which must have one thread only, to a network of its own that has nothing but the
/// loopback device, and lets it see other files in the place of these. Also for its children; the machine
/// notices nothing. Needs no privileges where user namespaces may be made; throws where nothing helps.
void enterOwnNamespaces(const std::vector<BoundFile>& files);

} // namespace skyvane::test
