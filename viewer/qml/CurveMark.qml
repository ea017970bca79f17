import QtQuick 2.15
import "."

// The colour and the symbol of a curve; hollow while it is hidden.
Item {
    id: mark

    property color color
    property bool isRight: false
    property bool isShown: true

    implicitWidth: 16
    implicitHeight: 16

    Rectangle {
        anchors.centerIn: parent
        width: mark.isRight ? 10 : 12
        height: width
        radius: 2
        rotation: mark.isRight ? 45 : 0
        readonly property color drawn: Theme.curve(mark.color)
        color: mark.isShown ? drawn : "transparent"
        border.color: drawn
        border.width: 2
    }
}
