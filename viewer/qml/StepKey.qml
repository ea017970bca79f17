import QtQuick 2.15
import "."

// One of the two keys of a TouchSpinBox.
Rectangle {
    property alias text: sign.text
    property bool pressed: false

    width: Theme.target
    height: parent ? parent.height : Theme.target
    radius: Theme.radius
    color: pressed ? Theme.pressed : "transparent"

    AppText {
        id: sign
        anchors.centerIn: parent
        color: Theme.accent
        font.pixelSize: 20
    }
}
