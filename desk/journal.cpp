#include "desk/journal.h"

#include "paint/to_qt.h"
#include "platform/text/printable.h"

#include <QDebug>

namespace skyvane {

namespace {

QtMessageHandler& handlerBefore()
{
    static QtMessageHandler handler = nullptr;
    return handler;
}

void tell(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    handlerBefore()(type, context, toQString(Unicode::oneLine(text.toStdString(), Unicode::longestLine)));
}

} // namespace

void keepJournalPrintable()
{
    const QtMessageHandler before = qInstallMessageHandler(tell);
    if (before != tell)
        handlerBefore() = before;
}

} // namespace skyvane
