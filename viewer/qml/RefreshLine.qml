import QtQuick 2.15
import "."

// How far a log is read that has changed, beside the work. A short read would only flicker.
Item {
    id: line

    property QtObject loader
    property bool isLong: false

    readonly property bool isRefreshing: loader.refreshing

    visible: isRefreshing && isLong
    height: 4
    Accessible.role: Accessible.ProgressBar
    Accessible.name: qsTr("Reading %1").arg(loader.fileName)

    onIsRefreshingChanged: isLong = false

    Timer {
        interval: 200
        running: line.isRefreshing
        onTriggered: line.isLong = true
    }
    Rectangle {
        width: line.width * line.loader.bytesRead / Math.max(1, line.loader.bytesTotal)
        height: line.height
        color: Theme.accent
    }
}
