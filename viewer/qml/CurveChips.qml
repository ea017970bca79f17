import QtQuick 2.15
import QtQuick.Controls 2.15
import DataLogViewer 1.0
import "."

// The curves, side by side.
Flickable {
    id: chips

    property CurveReadings readings
    property int mostRows: 2

    readonly property int columns: Math.max(1, Math.min(readings.count, Math.floor(width / 210)))
    readonly property int rows: Math.ceil(readings.count / columns)

    implicitHeight: Theme.target * Math.min(rows, mostRows)
    contentHeight: flow.height
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    // Tells that there are others below.
    ScrollBar.vertical: ScrollBar {
        policy: chips.rows > chips.mostRows ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
    }

    Flow {
        id: flow
        width: chips.width - (chips.rows > chips.mostRows ? 12 : 0) // beside the scroll bar

        Repeater {
            model: chips.readings
            CurveChip {
                objectName: "chip" + index
                width: flow.width / chips.columns
                name: model.name
                unit: model.unit
                reading: model.reading
                color: model.color
                isRight: model.isRight
                isShown: model.isShown
                onClicked: chips.readings.toggle(index)
            }
        }
    }
}
