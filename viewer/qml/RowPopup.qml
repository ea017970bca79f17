import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import QtQuick.Window 2.15
import DataLogViewer 1.0
import "."

// The rows of the log behind the cursor and the markers: to be looked at, and to be excluded.
Popup {
    id: popup

    property CurveReadings readings
    property RowJump jump

    signal tableRequested(int row)

    readonly property var spots: [
        { spot: CurveReadings.Cursor, name: qsTr("Cursor"), tag: "Cursor",
          isSet: readings.hasCursor, text: readings.cursorText },
        { spot: CurveReadings.A, name: qsTr("Marker A"), tag: "A",
          isSet: readings.hasA, text: readings.textA },
        { spot: CurveReadings.B, name: qsTr("Marker B"), tag: "B",
          isSet: readings.hasB, text: readings.textB }
    ]

    margins: Theme.gap
    padding: Theme.margin
    focus: true
    background: PopupFrame {}

    contentItem: ColumnLayout {
        spacing: Theme.gap

        Repeater {
            model: popup.visible ? popup.spots.filter(function (entry) { return entry.isSet }) : []
            RowLayout {
                spacing: Theme.gap

                AppText {
                    Layout.fillWidth: true
                    Layout.minimumWidth: 130
                    text: qsTr("%1: %2").arg(modelData.name).arg(modelData.text)
                }
                TouchButton {
                    objectName: "showInTable" + modelData.tag
                    text: qsTr("Show in table")
                    onClicked: {
                        // Closing takes this button away, and all it knows.
                        var sheet = popup
                        var row = sheet.jump.rowAt(modelData.spot)
                        sheet.close()
                        sheet.tableRequested(row)
                    }
                }
                TouchButton {
                    objectName: "exclude" + modelData.tag
                    text: qsTr("Exclude")
                    Accessible.description: qsTr("Leaves this row out of the plot")
                    onClicked: {
                        popup.jump.exclude(popup.jump.rowAt(modelData.spot))
                        popup.close()
                    }
                }
            }
        }
    }
}
