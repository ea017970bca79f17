import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

Switch {
    id: control

    property color onColor: Theme.accent

    implicitHeight: Theme.target
    font.family: Theme.family
    font.pixelSize: Theme.textSize
    spacing: Theme.gap
    Accessible.name: text

    indicator: Rectangle {
        x: control.leftPadding
        y: (control.height - height) / 2
        width: 44
        height: 24
        radius: height / 2
        color: control.checked ? control.onColor : Theme.off
        border.width: control.visualFocus ? 2 : 0
        border.color: Theme.text

        Rectangle {
            x: control.checked ? parent.width - width - 3 : 3
            y: 3
            width: 18
            height: 18
            radius: 9
            color: "white"
            Behavior on x { NumberAnimation { duration: 90 } }
        }
    }
    contentItem: AppText {
        leftPadding: control.indicator.width + control.spacing
        text: control.text
        font: control.font
    }
}
