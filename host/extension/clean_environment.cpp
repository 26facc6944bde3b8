#include "host/extension/clean_environment.h"

#include <algorithm>
#include <array>

namespace skyvane {

namespace {

bool isKept(const QString& name)
{
    static const std::array kept{
        QStringLiteral("LANG"),
        QStringLiteral("LANGUAGE"),
        QStringLiteral("TZ"),
        QStringLiteral("TZDIR"),
        QStringLiteral("PATH"),
        QStringLiteral("HOME"),
        QStringLiteral("http_proxy"), // Libraries read this one in lower case only.
        QStringLiteral("https_proxy"),
        QStringLiteral("HTTPS_PROXY"),
        QStringLiteral("all_proxy"),
        QStringLiteral("ALL_PROXY"),
        QStringLiteral("no_proxy"),
        QStringLiteral("NO_PROXY"),
    };
    return name.startsWith(QStringLiteral("LC_")) || std::find(kept.begin(), kept.end(), name) != kept.end();
}

} // namespace

QProcessEnvironment cleanEnvironment(const QProcessEnvironment& whole)
{
    QProcessEnvironment clean;
    for (const QString& name : whole.keys()) {
        if (isKept(name))
            clean.insert(name, whole.value(name));
    }
    return clean;
}

} // namespace skyvane
