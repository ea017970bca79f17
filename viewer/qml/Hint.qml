import QtQuick 2.15
import "."

// Says in the middle of an empty view why it is empty.
Rectangle {
    id: hint

    property alias text: label.text
    property string textName

    anchors.centerIn: parent
    width: Math.min(label.implicitWidth + 4 * Theme.margin, parent.width - 2 * Theme.margin)
    height: label.implicitHeight + 2 * Theme.margin
    radius: Theme.radius
    color: Theme.page
    border.color: Theme.border

    AppText {
        id: label
        objectName: hint.textName
        anchors.centerIn: parent
        width: Math.min(implicitWidth, hint.parent.width - 4 * Theme.margin)
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        color: Theme.mutedText
    }
}
