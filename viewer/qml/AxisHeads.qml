import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import "."

// What each axis shows, and what can be done with all of its variables.
RowLayout {
    id: heads

    property QtObject table

    signal leftOut(int axis, int count)

    function open(axis, head, title, chosen) {
        menu.axis = axis
        menu.title = title
        menu.chosen = chosen
        menu.parent = head
        menu.open()
    }

    spacing: 0

    AxisMenu {
        id: menu
        objectName: "axisMenu"
        y: parent ? parent.height + 2 : 0
        table: heads.table
        onLeftOut: heads.leftOut(axis, count)
    }
    Repeater {
        model: [
            { title: qsTr("X axis"), state: heads.table.xName, color: Theme.text,
              chosen: heads.table.xName === "" ? 0 : 1 },
            { title: qsTr("Left"), state: heads.table.leftCount, color: Theme.leftAxis,
              chosen: heads.table.leftCount },
            { title: qsTr("Right"), state: heads.table.rightCount, color: Theme.rightAxis,
              chosen: heads.table.rightCount }
        ]
        AbstractButton {
            id: head
            objectName: ["xHead", "leftHead", "rightHead"][index]
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            implicitHeight: Theme.target
            leftPadding: Theme.gap
            rightPadding: Theme.gap
            text: modelData.title
            Accessible.name: modelData.chosen > 0 ? qsTr("%1: %2").arg(text).arg(modelData.state)
                                                  : qsTr("%1: none").arg(text)
            Accessible.description: qsTr("All or none of the variables")
            onClicked: heads.open(index, head, text, modelData.chosen)

            contentItem: Column {
                AppText {
                    width: parent.width
                    text: head.text
                    color: Theme.mutedText
                    font.pixelSize: Theme.smallTextSize - 1
                }
                AppText {
                    objectName: head.objectName + "State"
                    width: parent.width
                    text: modelData.chosen > 0 ? modelData.state : qsTr("none")
                    color: modelData.chosen > 0 ? modelData.color : Theme.mutedText
                    font.bold: modelData.chosen > 0
                }
            }
            background: Rectangle {
                color: head.down ? Theme.pressed : "transparent"
                border.width: head.visualFocus ? 2 : 0
                border.color: Theme.text
                Rectangle {
                    anchors.bottom: parent.bottom
                    width: parent.width
                    height: 2
                    color: modelData.chosen > 0 ? modelData.color : Theme.border
                }
                Image {
                    anchors.right: parent.right
                    anchors.rightMargin: 6
                    y: 8
                    source: "../images/down.svg"
                    sourceSize: Qt.size(10, 10)
                    opacity: 0.6
                }
            }
        }
    }
}
