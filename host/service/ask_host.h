#pragma once

#include <QDBusConnection>
#include <QVariantList>

#include <stdexcept>
#include <string>

namespace skyvane {

/// There is no running host, or it refused; what() says why.
struct HostError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Calls a method of the session's running host and returns its answer. Throws `HostError`.
std::string askHost(QDBusConnection bus, const QString& method, const QVariantList& arguments = {});

} // namespace skyvane
