#include "hosts/plasma/plugin/widget_item.h"

#include <QQmlExtensionPlugin>

namespace skyvane {

/// The module that the applets' packages import.
class PlasmaPlugin : public QQmlExtensionPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    void registerTypes(const char* module) override
    {
        qmlRegisterType<WidgetItem>(module, 1, 0, "SkyvaneWidget");
    }
};

} // namespace skyvane

#include "plugin.moc"
