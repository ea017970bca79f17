import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

// A key of a tool bar, with a picture or a letter on it; its name is told to those who ask.
Button {
    id: button

    property string name
    property string keys // that do the same
    property bool isSwitch: false // is on or off, as "checked" tells
    property string picture // without the folder and the suffix

    // Words of other languages, in fonts that are wider, take more room.
    implicitWidth: Math.max(Theme.target, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Theme.target
    padding: 4
    opacity: enabled ? 1 : 0.4
    font.family: Theme.family
    font.pixelSize: Theme.textSize
    font.bold: true
    display: picture !== "" ? AbstractButton.IconOnly : AbstractButton.TextOnly
    icon.source: picture !== "" ? "icons/" + picture + ".svg" : ""
    icon.width: 22
    icon.height: 22
    icon.color: checked ? Theme.accentText : Theme.accent
    palette.buttonText: checked ? Theme.accentText : Theme.accent
    palette.brightText: Theme.accentText
    Accessible.name: name
    Accessible.checkable: isSwitch
    Accessible.checked: isSwitch && checked

    ToolTip.visible: hovered && !pressed
    ToolTip.delay: 700
    ToolTip.text: keys !== "" ? qsTr("%1 (%2)").arg(name).arg(keys) : name

    background: Rectangle {
        radius: Theme.radius
        color: button.checked ? Theme.accent : button.down ? Theme.pressed : "transparent"
        border.color: button.visualFocus ? Theme.text : Theme.border
        border.width: button.visualFocus ? 2 : 1
    }
}
