import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import DataLog 1.0
import DataLogViewer 1.0
import "."

// The plot with all there is to look at it, and a hint while it is empty.
Rectangle {
    id: pane

    property alias source: viewer.dataSource
    readonly property alias view: viewer
    readonly property alias readings: readings
    readonly property alias keys: keys
    property string hint
    property string filePath // of the log that is shown

    readonly property bool hasMarkers: readings.hasA || readings.hasB
    readonly property bool isLow: height < 500

    function takeTap(position) {
        if (bar.armedMarker >= 0)
            readings.place(bar.armedMarker, position)
        else
            readings.place(CurveReadings.Cursor, position)
        bar.armedMarker = -1
    }
    readonly property bool isSaving: savePopup.isSaving
    signal tableRowRequested(int row)
    signal leaveRequested()

    // Whether the window can close; if not yet, it is asked to once what is being saved is.
    function leave() { return savePopup.leave() }
    // The keyboard, without the frame that is for those who go about by Tab.
    function takeKeys() {
        area.isTouched = true
        area.forceActiveFocus()
    }

    // A row of the log; false where it has no sample that is shown.
    function showRow(row) {
        if (!jump.show(row))
            return false
        area.forceActiveFocus()
        return true
    }
    function giveUp() {
        bar.armedMarker = -1
        pad.zoomMode = false
        pad.cancel()
        readings.clearCursor()
    }

    color: Theme.plot
    // Another log has other bounds, and other samples under the markers.
    onFilePathChanged: {
        navigator.reset()
        readings.clearCursor()
        readings.clearMarkers()
    }

    PlotNavigator {
        id: navigator
        objectName: "navigator"
        view: viewer
    }
    CurveReadings {
        id: readings
        objectName: "readings"
        navigator: navigator
    }
    PlotDescription {
        id: description
        readings: readings
    }
    RowJump {
        id: jump
        readings: readings
    }
    RowPopup {
        id: rowPopup
        objectName: "rowPopup"
        parent: bar
        x: Math.max(0, Math.min(bar.rowsX, bar.width - width))
        y: bar.height
        readings: readings
        jump: jump
        onTableRequested: pane.tableRowRequested(row)
        onClosed: area.forceActiveFocus()
    }
    PlotKeys {
        id: keys
        objectName: "plotKeys"
        navigator: navigator
        readings: readings
        pad: pad
        onEscaped: pane.giveUp()
        onLimitsRequested: limitsPopup.open()
        onSaveRequested: savePopup.open()
        onTableRequested: pane.tableRowRequested(jump.currentRow())
        onExcludeRequested: jump.exclude(jump.currentRow())
    }
    SavePopup {
        id: savePopup
        objectName: "savePopup"
        view: viewer
        logPath: pane.filePath
        onClosed: area.forceActiveFocus()
        onLeaveRequested: pane.leaveRequested()
    }
    LimitsPopup {
        id: limitsPopup
        objectName: "limitsPopup"
        navigator: navigator
        onClosed: area.forceActiveFocus()
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        PlotToolBar {
            id: bar
            Layout.fillWidth: true
            navigator: navigator
            readings: readings
            pad: pad
            onLimitsRequested: limitsPopup.open()
            onSaveRequested: savePopup.open()
            onRowsRequested: rowPopup.open()
        }
        Item {
            id: area
            objectName: "plotArea"

            property bool isTouched: false

            Layout.fillWidth: true
            Layout.fillHeight: true
            activeFocusOnTab: true
            Accessible.role: Accessible.Chart
            Accessible.name: qsTr("Plot")
            Accessible.description: description.text
            Keys.onPressed: keys.handle(event)
            onActiveFocusChanged: isTouched = isTouched && activeFocus

            LogViewerItem {
                id: viewer
                objectName: "plot"
                anchors.fill: parent
                Accessible.ignored: true // the area tells what is seen
            }
            PlotPad {
                id: pad
                objectName: "pad"
                anchors.fill: parent
                navigator: navigator
                onHovered: readings.place(CurveReadings.Cursor, position)
                onTapped: pane.takeTap(position)
                handles: [readings.hasA ? readings.pixelA : NaN,
                          readings.hasB ? readings.pixelB : NaN]
                onHandleDragged: readings.place(handle, position)
                onTouched: pane.takeKeys()
            }
            PlotOverlay {
                anchors.fill: parent
                navigator: navigator
                readings: readings
                band: pad.band
            }
            Rectangle {
                anchors.fill: parent
                color: "transparent"
                border.color: Theme.text
                border.width: 2
                visible: area.activeFocus && !area.isTouched
            }
        }
        Rectangle {
            Layout.fillWidth: true
            implicitHeight: 1
            color: Theme.border
            visible: readings.count > 0
        }
        CurveChips {
            objectName: "chips"
            Layout.fillWidth: true
            visible: readings.count > 0 && !pane.hasMarkers
            readings: readings
            mostRows: pane.isLow ? 2 : 3
        }
        CurveTable {
            objectName: "curveTable"
            Layout.fillWidth: true
            visible: readings.count > 0 && pane.hasMarkers
            readings: readings
            mostRows: pane.isLow ? 1 : 4
            isLow: pane.isLow
        }
    }
    PlotLook {
        id: look
        view: viewer
        hasLegend: false
        isDark: Theme.isDark
        isOfInstrument: Preferences.instrumentColors
    }
    Hint {
        visible: !look.hasCurves && text !== ""
        text: pane.hint
        textName: "hint"
    }
}
