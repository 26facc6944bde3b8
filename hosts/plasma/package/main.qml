import QtQuick
import QtQuick.Layouts
import org.kde.plasma.core as PlasmaCore
import org.kde.plasma.plasmoid
import org.skyvane.plasma

/// One widget: where its picture is, what can be pressed of it, and what stands in its menu. All else is in the item.
PlasmoidItem {
    id: applet

    readonly property SkyvaneWidget widget: fullRepresentationItem

    preferredRepresentation: fullRepresentation
    toolTipMainText: Plasmoid.title
    Plasmoid.backgroundHints: PlasmaCore.Types.NoBackground
    Plasmoid.contextualActions: [
        PlasmaCore.Action {
            text: applet.widget?.refreshText ?? ""
            icon.name: "view-refresh"
            onTriggered: applet.widget?.refresh()
        }
    ]

    PlasmaCore.Action {
        id: settings
        text: applet.widget?.settingsText ?? ""
        icon.name: "configure"
        onTriggered: applet.widget?.openSettings()
    }
    Component.onCompleted: Plasmoid.setInternalAction("configure", settings)

    fullRepresentation: SkyvaneWidget {
        id: sky

        kind: Plasmoid.pluginName
        Layout.preferredWidth: naturalSize.width
        Layout.preferredHeight: naturalSize.height
        Layout.minimumWidth: 170
        Layout.minimumHeight: 170

        Accessible.role: Accessible.Grouping
        Accessible.name: name
        Accessible.description: notice
        Accessible.onPressAction: press(-1)
        Keys.onReturnPressed: press(-1)
        Keys.onEnterPressed: press(-1)

        FocusRing {
            isShown: sky.activeFocus
            radius: 22
        }

        PlasmaCore.ToolTipArea {
            anchors.fill: parent
            active: sky.notice !== ""
            mainText: sky.name
            subText: sky.notice
        }

        MouseArea {
            anchors.fill: parent
            onClicked: sky.press(-1)
        }

        Repeater {
            model: sky.parts

            Item {
                id: part

                required property int index
                required property var modelData
                readonly property bool isLink: modelData.link >= 0

                x: modelData.frame.x
                y: modelData.frame.y
                width: modelData.frame.width
                height: modelData.frame.height

                activeFocusOnTab: isLink
                Accessible.role: isLink ? Accessible.Link : Accessible.StaticText
                Accessible.name: modelData.text
                Accessible.onPressAction: sky.press(index)
                Keys.onReturnPressed: sky.press(index)
                Keys.onEnterPressed: sky.press(index)

                FocusRing {
                    isShown: part.activeFocus
                    radius: 4
                }

                MouseArea {
                    anchors.fill: parent
                    enabled: part.isLink
                    cursorShape: Qt.PointingHandCursor
                    onClicked: sky.press(part.index)
                }
            }
        }
    }

    component FocusRing: Rectangle {
        property bool isShown

        anchors.fill: parent
        visible: isShown
        color: "transparent"
        border.color: "#4d99ff"
        border.width: 2
    }
}
