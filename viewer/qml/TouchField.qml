import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

TextField {
    id: field

    opacity: enabled ? 1 : 0.45
    implicitHeight: Theme.target
    leftPadding: Theme.margin
    rightPadding: Theme.margin
    font.family: Theme.family
    font.pixelSize: Theme.textSize
    color: Theme.text
    placeholderTextColor: Theme.mutedText
    selectByMouse: true
    Accessible.name: placeholderText

    background: Rectangle {
        radius: Theme.radius
        color: Theme.surface
        border.color: field.activeFocus ? Theme.accent : Theme.border
        border.width: field.activeFocus ? 2 : 1
    }
}
