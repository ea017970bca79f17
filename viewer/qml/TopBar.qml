import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import "."

// What is open, and the way to open something else.
Rectangle {
    id: bar

    property string fileName
    property bool busy: false
    property bool hasLog: false
    property bool hasFile: false // to be read again, whether it could be read or not
    property bool following: false
    property bool refreshing: false
    property QtObject recent
    property QtObject troubles
    property bool isNarrow: false

    signal openRequested()
    signal recentRequested(string path)
    signal reloadRequested()
    signal followToggled()
    signal saveRequested()
    signal applyRequested()
    signal helpRequested()
    signal rowRequested(int dataSet, int row)

    function openMenu() { menu.open() }

    implicitHeight: Theme.target + 2 * Theme.gap
    color: Theme.surface

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.margin
        anchors.rightMargin: Theme.margin
        spacing: Theme.gap

        TouchButton {
            objectName: "openButton"
            text: qsTr("Open…")
            primary: true
            enabled: !bar.busy
            onClicked: bar.openRequested()
        }
        IconButton {
            objectName: "recentButton"
            name: qsTr("Open one of the recent logs")
            picture: "down"
            ToolTip.visible: hovered && !pressed && !recentPopup.visible
            enabled: !bar.busy
            onClicked: recentPopup.open()

            RecentPopup {
                id: recentPopup
                objectName: "recentPopup"
                y: parent.height + 2
                recent: bar.recent
                onChosen: bar.recentRequested(path)
            }
        }
        AppText {
            objectName: "fileName"
            Layout.fillWidth: true
            text: bar.fileName
            font.pixelSize: Theme.titleSize
            font.bold: true
        }
        IconButton {
            objectName: "troublesButton"
            implicitWidth: Math.max(Theme.target, implicitContentWidth + 2 * Theme.gap)
            visible: bar.hasLog && bar.troubles.count > 0
            name: qsTr("%L1 things were not taken as they stand").arg(bar.troubles.count)
            picture: "warning"
            display: AbstractButton.TextBesideIcon
            text: "%L1".arg(bar.troubles.count)
            onClicked: troublesPopup.open()

            TroublesPopup {
                id: troublesPopup
                objectName: "troublesPopup"
                troubles: bar.troubles
                onRowRequested: bar.rowRequested(dataSet, row)
            }
        }
        TouchButton {
            objectName: "followButton"
            text: qsTr("Follow")
            primary: bar.following
            enabled: bar.hasFile
            Accessible.checkable: true
            Accessible.checked: bar.following
            Accessible.description:
                bar.refreshing ? qsTr("The log has changed and is being read: a press stops that")
                               : qsTr("Reads the log again whenever it has changed")
            ToolTip.visible: hovered && !pressed
            ToolTip.delay: 700
            ToolTip.text: Accessible.description
            onClicked: bar.followToggled()
        }
        IconButton {
            objectName: "reloadButton"
            name: qsTr("Read the log again")
            keys: "F5"
            picture: "reload"
            enabled: bar.hasFile && !bar.busy
            onClicked: bar.reloadRequested()
        }
        TouchButton {
            objectName: "applySetupButton"
            text: qsTr("Apply setup…")
            visible: !bar.isNarrow
            enabled: bar.hasLog && !bar.busy
            onClicked: bar.applyRequested()
        }
        TouchButton {
            objectName: "saveSetupButton"
            text: qsTr("Save setup…")
            visible: !bar.isNarrow
            enabled: bar.hasLog && !bar.busy
            onClicked: bar.saveRequested()
        }
        IconButton {
            objectName: "helpButton"
            name: qsTr("Keys and gestures")
            keys: "F1"
            text: "?"
            onClicked: bar.helpRequested()
        }
        IconButton {
            objectName: "menuButton"
            name: qsTr("Menu")
            keys: "F10"
            picture: "menu"
            ToolTip.visible: hovered && !pressed && !menu.visible
            onClicked: bar.openMenu()

            ViewMenu {
                id: menu
                objectName: "viewMenu"
                x: parent.width - width
                y: parent.height + 2
                hasLog: bar.hasLog && !bar.busy
                hasSetups: bar.isNarrow
                onHelpRequested: bar.helpRequested()
                onSaveRequested: bar.saveRequested()
                onApplyRequested: bar.applyRequested()
            }
        }
    }
    BottomLine {}
}
