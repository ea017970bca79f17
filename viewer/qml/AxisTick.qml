import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

// Puts a variable on an axis, or takes it away.
AbstractButton {
    id: tick

    property bool on: false
    property color color: Theme.accent

    implicitWidth: Theme.target
    implicitHeight: Theme.target
    focusPolicy: Qt.NoFocus // keys go to the list
    font.family: Theme.family
    font.pixelSize: Theme.textSize
    checkable: true // which is what makes it a check box for screen readers
    checked: on
    onCheckedChanged: {
        if (checked !== on) // what a click does is decided by others
            checked = Qt.binding(function () { return tick.on })
    }
    Accessible.onToggleAction: clicked()

    contentItem: AppText {
        text: tick.text
        font.family: tick.font.family
        font.pixelSize: tick.font.pixelSize
        font.bold: tick.on
        color: tick.on ? Theme.accentText : Theme.mutedText
        horizontalAlignment: Text.AlignHCenter
    }
    background: Item {
        Rectangle {
            anchors.centerIn: parent
            width: 32
            height: 32
            radius: Theme.radius
            color: tick.on ? tick.color : tick.down ? Theme.pressed : "transparent"
            border.color: tick.on ? tick.color : Theme.border
        }
    }
}
