import QtQuick 2.15
import "."

// A variable: the colours of its curves, its name and unit, and a tick for each axis.
Item {
    id: row

    property bool isCurrent: false
    property string name
    property string unit
    property bool onX: false
    property bool onLeft: false
    property bool onRight: false
    property string leftColor
    property string rightColor

    signal toggled(int axis)
    signal tapped()

    implicitHeight: Theme.target
    Accessible.role: Accessible.ListItem
    Accessible.name: unit === "" ? name : qsTr("%1 in %2").arg(name).arg(unit)

    Rectangle {
        anchors.fill: parent
        color: Theme.pressed
        visible: row.isCurrent
    }
    MouseArea {
        id: tap
        anchors.fill: parent
        onClicked: row.tapped()
    }
    Column {
        id: swatches
        anchors.verticalCenter: parent.verticalCenter
        x: Theme.gap
        width: 10
        spacing: 3

        Repeater {
            model: [row.onLeft ? row.leftColor : "", row.onRight ? row.rightColor : ""]
            Rectangle {
                objectName: index === 0 ? "leftColor" : "rightColor"
                width: 10
                height: 10
                radius: 1
                rotation: index === 0 ? 0 : 45 // as the symbols in the plot
                color: modelData === "" ? "transparent" : Theme.curve(modelData)
                visible: modelData !== ""
            }
        }
    }
    Column {
        anchors.verticalCenter: parent.verticalCenter
        anchors.left: swatches.right
        anchors.leftMargin: Theme.gap
        anchors.right: ticks.left

        AppText {
            width: parent.width
            text: row.name
            font.bold: row.onX || row.onLeft || row.onRight
        }
        AppText {
            width: parent.width
            text: row.unit
            visible: text !== ""
            color: Theme.mutedText
            font.pixelSize: Theme.smallTextSize - 1
        }
    }
    Row {
        id: ticks
        anchors.right: parent.right

        AxisTick {
            objectName: "onX"
            text: qsTr("X", "axis")
            on: row.onX
            color: Theme.text
            Accessible.name: qsTr("%1 on the X axis").arg(row.name)
            onClicked: row.toggled(0)
        }
        AxisTick {
            objectName: "onLeft"
            text: qsTr("L", "left axis")
            on: row.onLeft
            color: Theme.leftAxis
            Accessible.name: qsTr("%1 on the left axis").arg(row.name)
            onClicked: row.toggled(1)
        }
        AxisTick {
            objectName: "onRight"
            text: qsTr("R", "right axis")
            on: row.onRight
            color: Theme.rightAxis
            Accessible.name: qsTr("%1 on the right axis").arg(row.name)
            onClicked: row.toggled(2)
        }
    }
}
