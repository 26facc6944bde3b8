#pragma once

#include <QProcessEnvironment>

namespace skyvane {

/// What the extension may see of an environment: locale, time zone, PATH, HOME and proxies, nothing else.
QProcessEnvironment cleanEnvironment(const QProcessEnvironment& whole);

} // namespace skyvane
