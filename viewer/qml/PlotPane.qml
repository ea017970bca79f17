import QtQuick 2.15
import DataLog 1.0
import DataLogViewer 1.0
import "."

// The plot, and a hint while it is empty.
Rectangle {
    id: pane

    property alias source: viewer.dataSource
    readonly property alias view: viewer
    property string hint

    color: "white"

    LogViewerItem {
        id: viewer
        objectName: "plot"
        anchors.fill: parent
    }
    PlotLook {
        id: look
        view: viewer
    }
    Rectangle {
        anchors.centerIn: parent
        width: Math.min(hintText.implicitWidth + 4 * Theme.margin, parent.width - 2 * Theme.margin)
        height: hintText.implicitHeight + 2 * Theme.margin
        radius: Theme.radius
        color: Theme.page
        border.color: Theme.border
        visible: !look.hasCurves && pane.hint !== ""

        AppText {
            id: hintText
            objectName: "hint"
            anchors.centerIn: parent
            width: Math.min(implicitWidth, pane.width - 4 * Theme.margin)
            text: pane.hint
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            color: Theme.mutedText
        }
    }
}
