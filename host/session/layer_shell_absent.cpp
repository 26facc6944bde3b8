#include "host/session/desktop_way.h"
#include "host/session/layer_shell.h"

namespace skyvane::LayerShell {

bool isBuiltIn()
{
    return false;
}

bool isOffered()
{
    return false;
}

std::unique_ptr<DesktopWay> way()
{
    return nullptr;
}

} // namespace skyvane::LayerShell
