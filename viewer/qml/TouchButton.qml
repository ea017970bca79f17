import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

Button {
    id: button

    property bool primary: false

    implicitHeight: Theme.target
    implicitWidth: Math.max(Theme.target, label.implicitWidth + 2 * Theme.margin)
    font.family: Theme.family
    font.pixelSize: Theme.textSize
    opacity: enabled ? 1 : 0.45
    Accessible.name: text

    contentItem: AppText {
        id: label
        text: button.text
        font: button.font
        color: button.primary ? Theme.accentText : Theme.accent
        horizontalAlignment: Text.AlignHCenter
    }
    background: Rectangle {
        radius: Theme.radius
        color: button.primary ? (button.down ? Qt.darker(Theme.accent, 1.2) : Theme.accent)
                              : (button.down ? Theme.pressed : Theme.surface)
        border.color: button.visualFocus ? Theme.text
                                         : button.primary ? Theme.accent : Theme.border
        border.width: button.visualFocus ? 2 : 1
    }
}
