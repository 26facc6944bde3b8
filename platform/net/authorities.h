#pragma once

#include <string>

namespace skyvane {

/// The certificate authorities that are trusted. A handshake reads from the folder the one that it needs;
/// reading the bundle of all of them costs more than all the rest of a small transfer.
struct Authorities {
    std::string folder; ///< Of PEM files, each named after its certificate's hash; empty when there is none.
    std::string bundle; ///< One PEM file; empty when there is none.

    /// The system's as the library was told; a pinned `Network` has its own.
    static Authorities current();
};

/// What certificates are verified against.
enum class Trust {
    folder, ///< Of a system without such a folder: the bundle.
    folderAndBundle,
};

} // namespace skyvane
