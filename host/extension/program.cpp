#include "host/extension/program.h"

#include "host/extension/clean_environment.h"

#include <QProcess>

namespace skyvane {

void ExtensionProgram::prepare(QProcess& process) const
{
    process.setProgram(QString::fromStdString(path.string()));
    process.setProcessEnvironment(cleanEnvironment(QProcessEnvironment::systemEnvironment()));
    process.setStandardErrorFile(QProcess::nullDevice());
}

} // namespace skyvane
