import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import "."

// How far a read is. A short read is over before this would do more than flicker.
Rectangle {
    id: pane

    property QtObject loader
    property bool isLong: false

    readonly property bool isReading: loader.reading

    function megabytes(bytes) {
        return (bytes / 1e6).toLocaleString(Qt.locale(), "f", 1)
    }

    visible: isReading && isLong
    color: Theme.page

    onIsReadingChanged: isLong = false

    Timer {
        interval: 200
        running: pane.isReading
        onTriggered: pane.isLong = true
    }
    Shortcut {
        sequence: "Escape"
        enabled: pane.visible
        onActivated: pane.loader.cancel()
    }
    ColumnLayout {
        anchors.centerIn: parent
        width: Math.min(480, parent.width - 4 * Theme.margin)
        spacing: Theme.margin

        AppText {
            Layout.fillWidth: true
            text: qsTr("Reading %1").arg(pane.loader.fileName)
            font.pixelSize: Theme.titleSize
            elide: Text.ElideMiddle
        }
        ProgressLine {
            id: bar
            objectName: "progressBar"
            Layout.fillWidth: true
            to: Math.max(1, pane.loader.bytesTotal)
            value: pane.loader.bytesRead
            Accessible.name: qsTr("Reading %1").arg(pane.loader.fileName)
        }
        RowLayout {
            AppText {
                Layout.fillWidth: true
                color: Theme.mutedText
                text: qsTr("%1 of %2 MB").arg(pane.megabytes(pane.loader.bytesRead))
                                         .arg(pane.megabytes(pane.loader.bytesTotal))
            }
            TouchButton {
                objectName: "cancelButton"
                text: qsTr("Cancel")
                onClicked: pane.loader.cancel()
            }
        }
    }
}
