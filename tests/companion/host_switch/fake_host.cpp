// Stands in for the widget host: has its name on the session bus, and quits when it is asked to. For a
// gallery it takes another name.

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>

namespace {

class FakeHost : public QDBusVirtualObject {
public:
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        if (message.member() == QStringLiteral("ShowGallery")) {
            QDBusConnection bus = connection;
            bus.registerService(QStringLiteral("org.skyvane.Test.Gallery"));
            return connection.send(message.createReply(QString{}));
        }
        if (message.member() != QStringLiteral("Quit"))
            return false;
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        return connection.send(message.createReply(QString{}));
    }
};

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application{argc, argv};
    QDBusConnection bus = QDBusConnection::sessionBus();
    FakeHost host;
    if (!bus.registerVirtualObject(QStringLiteral("/org/skyvane/Host"), &host)
        || !bus.registerService(QStringLiteral("org.skyvane.Host")))
        return 1;
    return QCoreApplication::exec();
}
