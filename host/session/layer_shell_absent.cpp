#include "host/session/layer_shell.h"

namespace skyvane::LayerShell {

bool isOffered()
{
    return false;
}

void adopt(QWidget&) { }

void move(QWidget&, const QPoint&) { }

} // namespace skyvane::LayerShell
