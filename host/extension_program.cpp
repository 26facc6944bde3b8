#include "host/extension_program.h"

#include "host/clean_environment.h"

#include <QProcess>

namespace skyvane {

void ExtensionProgram::prepare(QProcess& process) const
{
    process.setProgram(QString::fromStdString(path.string()));
    process.setProcessEnvironment(cleanEnvironment(QProcessEnvironment::systemEnvironment()));
    process.setStandardErrorFile(QProcess::nullDevice());
}

} // namespace skyvane
