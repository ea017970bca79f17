import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import "."

// What can be done with all variables of an axis.
Popup {
    id: menu

    property QtObject table
    property int axis: 0
    property int chosen: 0
    property string title

    signal leftOut(int count)

    function run(action) {
        close()
        action()
    }

    width: 260
    margins: Theme.gap
    padding: Theme.gap
    focus: true
    background: PopupFrame {}

    contentItem: ColumnLayout {
        spacing: Theme.gap

        SectionTitle {
            Layout.fillWidth: true
            text: menu.title
        }
        TouchButton {
            objectName: "chooseListed"
            Layout.fillWidth: true
            visible: menu.axis > 0
            enabled: menu.table.count > 0
            text: qsTr("All %L1 listed").arg(menu.table.count)
            onClicked: menu.run(function() {
                menu.leftOut(menu.table.chooseListed(menu.axis))
            })
        }
        TouchButton {
            objectName: "chooseLatest"
            Layout.fillWidth: true
            visible: menu.axis > 0
            enabled: menu.chosen > 5
            text: qsTr("Only the latest five")
            onClicked: menu.run(function() { menu.table.chooseLatest(menu.axis) })
        }
        TouchButton {
            objectName: "chooseNone"
            Layout.fillWidth: true
            enabled: menu.chosen > 0
            text: qsTr("None")
            onClicked: menu.run(function() { menu.table.chooseNone(menu.axis) })
        }
    }
}
