import QtQuick 2.15
import DataLogViewer 1.0
import "."

// The whole text of a cell that has no room for it, beside the cell; taps go through to the table.
Rectangle {
    id: bubble

    property CutCell cell

    readonly property real below: cell.area.y + cell.area.height + 4
    readonly property real above: cell.area.y - height - 4

    visible: cell.text !== ""
    width: Math.min(label.implicitWidth, Math.min(480, parent.width - 2 * Theme.gap)
                                         - 2 * Theme.margin) + 2 * Theme.margin
    height: Math.min(label.implicitHeight + 2 * Theme.gap, parent.height - 2 * Theme.gap)
    x: Math.max(Theme.gap, Math.min(cell.area.x, parent.width - width - Theme.gap))
    y: below + height <= parent.height || above < 0 ? Math.min(below, parent.height - height)
                                                    : above
    radius: Theme.radius
    color: Theme.surface
    border.color: Theme.accent

    AppText {
        id: label
        objectName: "cutText"
        anchors.fill: parent
        anchors.leftMargin: Theme.margin
        anchors.rightMargin: Theme.margin
        anchors.topMargin: Theme.gap
        anchors.bottomMargin: Theme.gap
        text: bubble.cell.text
        wrapMode: Text.Wrap
    }
}
