import QtQuick 2.15
import DataLogViewer 1.0

// The keys of the plot, all in one place: what does something while the plot has the keyboard, and
// what there is to say about it.
QtObject {
    id: keys

    property PlotNavigator navigator
    property CurveReadings readings
    property PlotPad pad

    signal escaped()
    signal limitsRequested()
    signal saveRequested()
    signal tableRequested()
    signal excludeRequested()

    readonly property real panStep: 0.1
    readonly property real zoomStep: 0.8

    // Each with what to press, as a person reads it, and what it does. A key is found with just the
    // modifiers given; one without "modifiers" is found with Shift or without, for some keyboards
    // need it.
    readonly property var bindings: [
        { shown: "←", text: qsTr("Move the view to the left"), key: Qt.Key_Left, modifiers: 0,
          run: function () { keys.navigator.panBy(keys.navigator.axes, -keys.panStep, 0) } },
        { shown: "→", text: qsTr("Move the view to the right"), key: Qt.Key_Right, modifiers: 0,
          run: function () { keys.navigator.panBy(keys.navigator.axes, keys.panStep, 0) } },
        { shown: "↑", text: qsTr("Move the view up"), key: Qt.Key_Up, modifiers: 0,
          run: function () { keys.navigator.panBy(keys.navigator.axes, 0, keys.panStep) } },
        { shown: "↓", text: qsTr("Move the view down"), key: Qt.Key_Down, modifiers: 0,
          run: function () { keys.navigator.panBy(keys.navigator.axes, 0, -keys.panStep) } },
        { shown: "+", text: qsTr("Zoom in"), key: Qt.Key_Plus,
          run: function () { keys.navigator.zoomBy(keys.navigator.axes, keys.zoomStep) } },
        { shown: "−", text: qsTr("Zoom out"), key: Qt.Key_Minus,
          run: function () { keys.navigator.zoomBy(keys.navigator.axes, 1 / keys.zoomStep) } },
        { shown: "X", text: qsTr("Move the X axis only, or all again"), key: Qt.Key_X,
          run: function () { keys.chooseAxes(PlotNavigator.Bottom) } },
        { shown: "L", text: qsTr("Move the left axis only, or all again"), key: Qt.Key_L,
          run: function () { keys.chooseAxes(PlotNavigator.Left) } },
        { shown: "R", text: qsTr("Move the right axis only, or all again"), key: Qt.Key_R,
          run: function () { keys.chooseAxes(PlotNavigator.Right) } },
        { shown: qsTr("Home"), text: qsTr("Show everything"), key: Qt.Key_Home, modifiers: 0,
          run: function () { keys.navigator.autoscale(keys.navigator.axes) } },
        { shown: qsTr("Backspace"), text: qsTr("One zoom step back"), key: Qt.Key_Backspace,
          modifiers: 0, run: function () { keys.navigator.back() } },
        { shown: qsTr("Alt+←"), text: qsTr("One zoom step back"), key: Qt.Key_Left,
          modifiers: Qt.AltModifier, run: function () { keys.navigator.back() } },
        { shown: qsTr("Alt+→"), text: qsTr("One zoom step forward"), key: Qt.Key_Right,
          modifiers: Qt.AltModifier, run: function () { keys.navigator.forward() } },
        { shown: "Z", text: qsTr("Zoom into a rectangle"), key: Qt.Key_Z,
          run: function () { keys.pad.zoomMode = !keys.pad.zoomMode } },
        { shown: ",", text: qsTr("Cursor to the sample before"), key: Qt.Key_Comma,
          run: function () { keys.readings.moveCursor(-1) } },
        { shown: ".", text: qsTr("Cursor to the next sample"), key: Qt.Key_Period,
          run: function () { keys.readings.moveCursor(1) } },
        { shown: qsTr("Ctrl+←"), text: qsTr("Cursor to the left"), key: Qt.Key_Left,
          modifiers: Qt.ControlModifier, run: function () { keys.readings.shiftCursor(-0.02) } },
        { shown: qsTr("Ctrl+→"), text: qsTr("Cursor to the right"), key: Qt.Key_Right,
          modifiers: Qt.ControlModifier, run: function () { keys.readings.shiftCursor(0.02) } },
        { shown: "A", text: qsTr("Marker A at the cursor"), key: Qt.Key_A,
          run: function () { keys.readings.placeAtCursor(CurveReadings.A) } },
        { shown: "B", text: qsTr("Marker B at the cursor"), key: Qt.Key_B,
          run: function () { keys.readings.placeAtCursor(CurveReadings.B) } },
        { shown: qsTr("Delete"), text: qsTr("Remove the markers"), key: Qt.Key_Delete,
          modifiers: 0, run: function () { keys.readings.clearMarkers() } },
        { shown: "H", text: qsTr("Show hidden curves again"), key: Qt.Key_H,
          run: function () { keys.readings.showAll() } },
        { shown: "T", text: qsTr("Show the row at the cursor in the table"), key: Qt.Key_T,
          run: function () { keys.tableRequested() } },
        { shown: "E", text: qsTr("Exclude the row at the cursor"), key: Qt.Key_E,
          run: function () { keys.excludeRequested() } },
        { shown: qsTr("Escape"), text: qsTr("Give up, remove the cursor"), key: Qt.Key_Escape,
          modifiers: 0, run: function () { keys.escaped() } },
        { shown: qsTr("Ctrl+L"), text: qsTr("Limits of the axes"), key: Qt.Key_L,
          modifiers: Qt.ControlModifier, run: function () { keys.limitsRequested() } },
        { shown: qsTr("Ctrl+E"), text: qsTr("Save the plot or its data"), key: Qt.Key_E,
          modifiers: Qt.ControlModifier, run: function () { keys.saveRequested() } }
    ]

    function chooseAxes(axes) {
        navigator.axes = navigator.axes === axes ? PlotNavigator.AllAxes : axes
    }
    function fits(binding, event) {
        var modifiers = event.modifiers & ~Qt.KeypadModifier
        if (binding.modifiers === undefined)
            modifiers &= ~Qt.ShiftModifier
        // Some keyboards have the plus above another sign.
        var key = event.key === Qt.Key_Equal ? Qt.Key_Plus : event.key
        return binding.key === key && (binding.modifiers || 0) === modifiers
    }
    function handle(event) {
        for (var i = 0; i < bindings.length; ++i) {
            if (!fits(bindings[i], event))
                continue
            bindings[i].run()
            event.accepted = true
            return
        }
    }
}
