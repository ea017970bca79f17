import QtQuick 2.15

// What controls do by themselves, to be told beside the keys that the viewer has of its own.
QtObject {
    readonly property var moving: [
        { shown: qsTr("Tab"), text: qsTr("To the next control") },
        { shown: qsTr("Shift+Tab"), text: qsTr("To the control before") },
        { shown: qsTr("Space"), text: qsTr("Press a button, turn a switch, open a list") },
        { shown: qsTr("Arrows"), text: qsTr("Another tab, another row") },
        { shown: qsTr("Escape"), text: qsTr("Close what has popped up, cancel reading, leave an error") }
    ]
    readonly property var lists: [
        { shown: "X, L, R", text: qsTr("Put the variable on the X, the left or the right axis") },
        { shown: qsTr("Space"), text: qsTr("Tick a criterion, exclude a row") },
        { shown: qsTr("Delete"), text: qsTr("Remove a criterion, forget a recent log") },
        { shown: qsTr("Enter"), text: qsTr("Open a recent log, show a row that was not taken") },
        { shown: "0 … 9", text: qsTr("Type the number of a new criterion") }
    ]
    readonly property var pointing: [
        { shown: qsTr("Drag"), text: qsTr("Move the view; on a scale, that axis only") },
        { shown: qsTr("Drag"), text: qsTr("On a marker, to a side: move the marker") },
        { shown: qsTr("Wheel"), text: qsTr("Zoom; with Ctrl along X, with Shift up and down") },
        { shown: qsTr("Two fingers"), text: qsTr("Zoom and move at once") },
        { shown: qsTr("Shift+drag"), text: qsTr("Zoom into a rectangle") },
        { shown: qsTr("Double tap"), text: qsTr("Show everything; on a scale, that axis only") },
        { shown: qsTr("Right click"), text: qsTr("One zoom step back") },
        { shown: qsTr("Tap"), text: qsTr("Put the cursor, or the marker chosen before") },
        { shown: qsTr("Tap"), text: qsTr("On a cell of a table: select it, and read what it cuts off") },
        { shown: qsTr("Double tap"), text: qsTr("On a table's header: show the whole column") }
    ]
}
