import QtQuick 2.15
import "."

// Takes files that are dropped on the window.
DropArea {
    id: layer

    signal taken(var files)

    keys: ["text/uri-list"]
    onDropped: {
        var files = drop.urls.map(function(file) { return file })
        drop.accept(Qt.CopyAction)
        // Not within the drop, for reading a log takes its time.
        Qt.callLater(function() { layer.taken(files) })
    }

    Rectangle {
        objectName: "dropHint"
        anchors.fill: parent
        visible: layer.containsDrag
        color: Qt.rgba(Theme.page.r, Theme.page.g, Theme.page.b, 0.9)
        border.color: Theme.accent
        border.width: 3

        AppText {
            anchors.centerIn: parent
            width: Math.min(implicitWidth, parent.width - 4 * Theme.margin)
            text: qsTr("Drop a log to open it, or a setup to apply it")
            color: Theme.accent
            font.pixelSize: Theme.titleSize
            font.bold: true
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
        }
    }
}
