import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

// What is open, and the way to open something else.
Rectangle {
    id: bar

    property string fileName
    property string folder
    property bool busy: false

    signal openRequested()

    implicitHeight: Theme.target + 2 * Theme.gap
    color: Theme.surface

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.margin
        anchors.rightMargin: Theme.margin
        spacing: Theme.margin

        TouchButton {
            objectName: "openButton"
            text: qsTr("Open…")
            primary: true
            enabled: !bar.busy
            onClicked: bar.openRequested()
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 0

            AppText {
                objectName: "fileName"
                Layout.fillWidth: true
                text: bar.fileName
                font.pixelSize: Theme.titleSize
                font.bold: true
            }
            AppText {
                Layout.fillWidth: true
                text: bar.folder
                visible: text !== ""
                color: Theme.mutedText
                font.pixelSize: Theme.smallTextSize
                elide: Text.ElideMiddle
            }
        }
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: 1
        color: Theme.border
    }
}
