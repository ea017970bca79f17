import QtQuick 2.15
import DataLogViewer 1.0
import "."

// What lies over the plot: the cursor with its samples, the markers, a rectangle being drawn.
Item {
    id: overlay

    property PlotNavigator navigator
    property CurveReadings readings
    property rect band

    component Line: Item {
        id: line

        property string tag
        property string text
        property double pixel
        property color color: Theme.text
        property bool isTop: true

        x: Math.round(pixel)
        y: overlay.navigator.canvas.y
        height: overlay.navigator.canvas.height

        Rectangle {
            width: 1
            height: parent.height
            color: line.color
        }
        Rectangle {
            readonly property real room: overlay.navigator.canvas.x
                                         + overlay.navigator.canvas.width - line.x
            x: room > width + 2 ? 1 : -width
            y: line.isTop ? 2 : line.height - height - 2
            width: label.implicitWidth + 10
            height: label.implicitHeight + 4
            radius: 3
            color: line.color

            AppText {
                id: label
                objectName: "lineLabel"
                anchors.centerIn: parent
                text: line.tag !== "" ? line.tag + "  " + line.text : line.text
                color: Theme.page
                font.pixelSize: Theme.smallTextSize
            }
        }
    }

    Rectangle {
        readonly property bool isShown: overlay.readings.hasA && overlay.readings.hasB
        visible: isShown
        clip: true
        x: Math.max(overlay.navigator.canvas.x,
                    Math.min(overlay.readings.pixelA, overlay.readings.pixelB))
        y: overlay.navigator.canvas.y
        width: Math.max(0, Math.min(overlay.navigator.canvas.x + overlay.navigator.canvas.width,
                                    Math.max(overlay.readings.pixelA, overlay.readings.pixelB))
                           - x)
        height: overlay.navigator.canvas.height
        color: Theme.accent
        opacity: 0.08
    }
    function isInside(pixel) {
        return pixel >= navigator.canvas.x && pixel <= navigator.canvas.x + navigator.canvas.width
    }
    Line {
        objectName: "lineA"
        visible: overlay.readings.hasA && overlay.isInside(pixel)
        tag: "A"
        text: overlay.readings.textA
        pixel: overlay.readings.pixelA
        color: Theme.accent
        isTop: false
    }
    Line {
        objectName: "lineB"
        visible: overlay.readings.hasB && overlay.isInside(pixel)
        tag: "B"
        text: overlay.readings.textB
        pixel: overlay.readings.pixelB
        color: Theme.accent
        isTop: false
    }
    Line {
        objectName: "cursorLine"
        visible: overlay.readings.hasCursor && overlay.isInside(pixel)
        text: overlay.readings.cursorText
        pixel: overlay.readings.cursorPixel
        color: Theme.mutedText
    }
    Repeater {
        model: overlay.readings
        Rectangle {
            visible: model.dot !== undefined
            x: visible ? Math.round(model.dot.x) - 4 : 0
            y: visible ? Math.round(model.dot.y) - 4 : 0
            width: 9
            height: 9
            radius: model.isRight ? 1 : 5
            rotation: model.isRight ? 45 : 0
            color: Theme.curve(model.color)
            border.color: Theme.plot
        }
    }
    Rectangle {
        objectName: "band"
        visible: overlay.band.width > 0 || overlay.band.height > 0
        x: overlay.band.x
        y: overlay.band.y
        width: overlay.band.width
        height: overlay.band.height
        color: Qt.rgba(Theme.accent.r, Theme.accent.g, Theme.accent.b, 0.12)
        border.color: Theme.accent
    }
}
