#pragma once

namespace skyvane::Extension::ShutDoors {

/// Refuses the system calls that the connector never makes, whatever the machine's name services are: all of
/// those only read, connect and talk. Whether the kernel took it.
bool shut();

} // namespace skyvane::Extension::ShutDoors
