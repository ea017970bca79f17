import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import QtQuick.Window 2.15
import DataLogViewer 1.0
import "."

// How the viewer looks, and what has no room elsewhere.
Popup {
    id: menu

    property bool hasLog: false
    property bool hasSetups: false // the buttons of the bar are here instead
    readonly property var themes: ["auto", "light", "dark"]

    signal helpRequested()
    signal saveRequested()
    signal applyRequested()

    function run(action) {
        close()
        action()
    }

    width: 300
    height: Math.min(implicitHeight, parent.Window.height - 2 * Theme.gap)
    margins: Theme.gap
    padding: Theme.gap
    focus: true
    background: PopupFrame {}

    contentItem: Flickable {
        implicitHeight: column.implicitHeight
        contentHeight: column.implicitHeight
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        ColumnLayout {
            id: column
            width: parent.width
            spacing: Theme.gap

            SectionTitle { text: qsTr("Colours") }
            TouchComboBox {
                objectName: "themeChoice"
                Layout.fillWidth: true
                model: [qsTr("As the desktop"), qsTr("Light"), qsTr("Dark")]
                currentIndex: menu.themes.indexOf(Preferences.theme)
                Accessible.name: qsTr("Colours")
                onActivated: Preferences.theme = menu.themes[index]
            }
            TouchSwitch {
                objectName: "instrumentColorsSwitch"
                Layout.fillWidth: true
                text: qsTr("Curves as on the instrument")
                checked: Preferences.instrumentColors
                onToggled: {
                    Preferences.instrumentColors = checked
                    checked = Qt.binding(function() { return Preferences.instrumentColors })
                }
            }
            TouchSwitch {
                objectName: "panelSwitch"
                Layout.fillWidth: true
                text: qsTr("Side panel")
                checked: Preferences.panelShown
                onToggled: {
                    Preferences.panelShown = checked
                    checked = Qt.binding(function() { return Preferences.panelShown })
                }
            }
            TouchButton {
                objectName: "menuApplySetup"
                Layout.fillWidth: true
                visible: menu.hasSetups
                enabled: menu.hasLog
                text: qsTr("Apply setup…")
                onClicked: menu.run(menu.applyRequested)
            }
            TouchButton {
                objectName: "menuSaveSetup"
                Layout.fillWidth: true
                visible: menu.hasSetups
                enabled: menu.hasLog
                text: qsTr("Save setup…")
                onClicked: menu.run(menu.saveRequested)
            }
            TouchButton {
                objectName: "menuHelp"
                Layout.fillWidth: true
                text: qsTr("Keys and gestures…")
                onClicked: menu.run(menu.helpRequested)
            }
            AppText {
                objectName: "versionText"
                Layout.fillWidth: true
                text: qsTr("DataLog %1").arg(Qt.application.version)
                color: Theme.mutedText
                font.pixelSize: Theme.smallTextSize
                horizontalAlignment: Text.AlignHCenter
            }
        }
    }
}
