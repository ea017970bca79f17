import QtQuick 2.15
import DataLogViewer 1.0
import "."

// What can be done to the view of the plot.
Rectangle {
    id: bar

    property PlotNavigator navigator
    property CurveReadings readings
    property PlotPad pad
    // The marker that the next tap on the plot sets; -1 for none.
    property int armedMarker: -1

    readonly property real rowsX: row.x + rowActions.x // where their popup belongs

    signal limitsRequested()
    signal saveRequested()
    signal rowsRequested()

    readonly property var choices: [
        { axes: PlotNavigator.AllAxes, text: qsTr("All"), name: qsTr("Moving all axes") },
        { axes: PlotNavigator.Bottom, text: qsTr("X"), name: qsTr("Moving the X axis only") },
        { axes: PlotNavigator.Left, text: qsTr("L"), name: qsTr("Moving the left axis only") },
        { axes: PlotNavigator.Right, text: qsTr("R"), name: qsTr("Moving the right axis only") }
    ]
    readonly property var choice: choices.find(function (entry) {
        return entry.axes === navigator.axes
    }) || choices[0]

    function arm(marker) { armedMarker = armedMarker === marker ? -1 : marker }
    function nextAxes() {
        navigator.axes = choices[(choices.indexOf(choice) + 1) % choices.length].axes
    }

    implicitHeight: Theme.target + Theme.gap
    color: Theme.surface

    Row {
        id: row
        anchors.verticalCenter: parent.verticalCenter
        x: Theme.gap
        spacing: 6

        IconButton {
            objectName: "zoomBack"
            name: qsTr("One step back")
            keys: qsTr("Backspace")
            picture: "back"
            enabled: bar.navigator.canGoBack
            onClicked: bar.navigator.back()
        }
        IconButton {
            objectName: "showEverything"
            name: qsTr("Show everything")
            keys: qsTr("Home")
            picture: "fit"
            enabled: bar.navigator.isZoomed
            onClicked: bar.navigator.autoscale(PlotNavigator.AllAxes)
        }
        IconButton {
            objectName: "zoomMode"
            name: qsTr("Zoom into a rectangle")
            keys: "Z"
            picture: "zoom"
            isSwitch: true
            checked: bar.pad.zoomMode
            onClicked: bar.pad.zoomMode = !bar.pad.zoomMode
        }
        IconButton {
            objectName: "axesChoice"
            name: bar.choice.name
            keys: "X, L, R"
            text: bar.choice.text
            checked: bar.navigator.axes !== PlotNavigator.AllAxes
            onClicked: bar.nextAxes()
        }
        IconButton {
            objectName: "limits"
            name: qsTr("Limits of the axes")
            keys: qsTr("Ctrl+L")
            picture: "limits"
            onClicked: bar.limitsRequested()
        }
        IconButton {
            objectName: "markerA"
            name: qsTr("Tap to put marker A")
            keys: "A"
            text: "A"
            isSwitch: true
            checked: bar.armedMarker === CurveReadings.A
            onClicked: bar.arm(CurveReadings.A)
        }
        IconButton {
            objectName: "markerB"
            name: qsTr("Tap to put marker B")
            keys: "B"
            text: "B"
            isSwitch: true
            checked: bar.armedMarker === CurveReadings.B
            onClicked: bar.arm(CurveReadings.B)
        }
        IconButton {
            objectName: "clearMarkers"
            name: qsTr("Remove the markers")
            keys: qsTr("Delete")
            picture: "clear"
            enabled: bar.readings.hasA || bar.readings.hasB
            onClicked: bar.readings.clearMarkers()
        }
        IconButton {
            id: rowActions
            objectName: "rowActions"
            name: qsTr("Show in the table, or exclude")
            keys: "T, E"
            picture: "rows"
            enabled: bar.readings.count > 0
                     && (bar.readings.hasCursor || bar.readings.hasA || bar.readings.hasB)
            onClicked: bar.rowsRequested()
        }
        IconButton {
            objectName: "saveAs"
            name: qsTr("Save the plot or its data")
            keys: qsTr("Ctrl+E")
            picture: "save"
            enabled: bar.readings.count > 0
            onClicked: bar.saveRequested()
        }
    }
    BottomLine {}
}
