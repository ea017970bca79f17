import QtQuick 2.15
import QtQuick.Controls 2.15
import DataLogViewer 1.0
import "."

// The curves, one below the other, with what is to be read off them at the cursor, at the markers
// and between these.
Flickable {
    id: table

    property CurveReadings readings
    property int mostRows: 3
    property bool isLow: false // there is room for one line of titles only

    readonly property int nameWidth: 190
    readonly property var columns: [
        { role: "reading", title: qsTr("Cursor") },
        { role: "readingA", title: qsTr("A") },
        { role: "readingB", title: qsTr("B") },
        { role: "difference", title: qsTr("B − A") },
        { role: "least", title: qsTr("Minimum") },
        { role: "greatest", title: qsTr("Maximum") },
        { role: "mean", title: qsTr("Mean") }
    ]
    readonly property real cellWidth: Math.max(88, (width - nameWidth) / columns.length)

    implicitHeight: header.height
                    + Theme.target * Math.min(readings.count, mostRows + 0.5)
    contentWidth: nameWidth + cellWidth * columns.length
    contentHeight: height
    flickableDirection: Flickable.HorizontalFlick
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    ScrollBar.horizontal: ScrollBar {
        policy: table.contentWidth > table.width ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
        height: 6
    }

    component Cell: AppText {
        width: table.cellWidth
        height: parent.height
        rightPadding: Theme.gap
        horizontalAlignment: Text.AlignRight
    }

    Row {
        id: header
        width: table.contentWidth
        height: table.isLow ? Theme.smallTextSize + 13 : 2 * Theme.smallTextSize + 14

        AppText {
            width: table.nameWidth
            height: parent.height
            leftPadding: Theme.gap
            text: table.isLow && table.readings.distanceText !== ""
                  ? qsTr("B − A: %1").arg(table.readings.distanceText) : table.readings.xName
            color: Theme.mutedText
            font.pixelSize: Theme.smallTextSize
        }
        Repeater {
            model: table.columns
            Cell {
                readonly property string place: [table.readings.cursorText, table.readings.textA,
                                                 table.readings.textB,
                                                 table.readings.distanceText][index] || ""
                objectName: "head_" + modelData.role
                text: place === "" || table.isLow ? modelData.title
                                                  : modelData.title + "\n" + place
                color: Theme.mutedText
                font.pixelSize: Theme.smallTextSize
            }
        }
    }
    ListView {
        id: list
        objectName: "curveRows"
        y: header.height
        width: table.contentWidth
        height: table.height - y
        clip: true
        // Rows that are made ahead, bit by bit, can outlive the curves they are for.
        cacheBuffer: 0
        boundsBehavior: Flickable.StopAtBounds
        model: table.readings
        ScrollBar.vertical: ScrollBar {}

        delegate: Row {
            id: row
            readonly property var curve: model
            readonly property int curveIndex: index
            height: Theme.target

            CurveChip {
                objectName: "row" + index
                width: table.nameWidth
                name: row.curve.name
                unit: row.curve.unit
                color: row.curve.color
                isRight: row.curve.isRight
                isShown: row.curve.isShown
                told: table.columns.filter(function (column) { return row.curve[column.role] })
                                   .map(function (column) {
                                       return column.title + ": " + row.curve[column.role]
                                   }).join(", ")
                onClicked: table.readings.toggle(row.curveIndex)
            }
            Repeater {
                model: table.columns
                Cell {
                    objectName: modelData.role
                    text: row.curve[modelData.role]
                }
            }
        }
    }
}
