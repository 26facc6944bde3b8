#include "desk/bus/names.h"

#include "desk/bus/host_interface.h"
#include "desk/bus/shell_interface.h"

namespace skyvane {

QString BusName::host()
{
    return QString::fromLatin1(HostInterface::staticInterfaceName());
}

QString BusName::companion()
{
    return QStringLiteral("org.skyvane.Companion");
}

QString BusName::shell()
{
    return QString::fromLatin1(ShellInterface::staticInterfaceName());
}

QString BusName::portal()
{
    return QStringLiteral("org.freedesktop.portal.Desktop");
}

QString BusName::portalPath()
{
    return QStringLiteral("/org/freedesktop/portal/desktop");
}

QString BusName::path(QString name)
{
    return QLatin1Char{'/'} + name.replace(QLatin1Char{'.'}, QLatin1Char{'/'});
}

} // namespace skyvane
