import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import QtQuick.Window 2.15
import DataLogViewer 1.0
import "."

// Which groups of columns a table shows, and how high its rows are.
Popup {
    id: popup

    property QtObject columns

    width: 288
    height: Math.min(implicitHeight, parent.Window.height - 2 * Theme.gap)
    margins: Theme.gap
    padding: Theme.gap
    background: PopupFrame {}

    contentItem: ColumnLayout {
        spacing: Theme.gap

        RowLayout {
            Layout.fillWidth: true
            spacing: Theme.gap

            SectionTitle {
                Layout.fillWidth: true
                text: qsTr("Groups of columns")
            }
            TouchButton {
                objectName: "showAllGroups"
                text: qsTr("All")
                onClicked: popup.columns.showAllGroups()
            }
            TouchButton {
                objectName: "hideAllGroups"
                text: qsTr("None")
                onClicked: popup.columns.hideAllGroups()
            }
        }
        ListView {
            id: list
            objectName: "groupList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            implicitHeight: contentHeight
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            ScrollBar.vertical: ScrollBar {}
            model: popup.columns.groups
            delegate: TouchSwitch {
                id: control
                readonly property bool shown: popup.columns.hiddenGroups.indexOf(modelData) < 0
                width: list.width
                text: modelData
                checked: shown
                onToggled: {
                    popup.columns.setGroupShown(modelData, checked)
                    checked = Qt.binding(function() { return control.shown })
                }
            }
        }
        TouchSwitch {
            objectName: "compactRows"
            Layout.fillWidth: true
            text: qsTr("Compact rows")
            checked: Preferences.compactRows
            onToggled: {
                Preferences.compactRows = checked
                checked = Qt.binding(function() { return Preferences.compactRows })
            }
        }
    }
}
