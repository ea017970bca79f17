import QtQuick 2.15
import DataLogViewer 1.0
import "."

// The keys of the table, all in one place: what does something while the table has the keyboard, and
// what there is to say about it.
QtObject {
    id: keys

    property TableSelection selection
    readonly property int far: 2000000000

    signal findRequested()
    signal findAgainRequested(bool backwards)
    signal copyRequested(bool withHeader)
    signal plotRequested()

    // Shift extends the selection where "moves" says so.
    readonly property var bindings: [
        { shown: "↑ ↓ ← →", text: qsTr("Move the current cell; with Shift, select up to it"),
          key: Qt.Key_Up, moves: true, run: function (extend) { keys.move(-1, 0, extend) } },
        { key: Qt.Key_Down, moves: true, run: function (extend) { keys.move(1, 0, extend) } },
        { key: Qt.Key_Left, moves: true, run: function (extend) { keys.move(0, -1, extend) } },
        { key: Qt.Key_Right, moves: true, run: function (extend) { keys.move(0, 1, extend) } },
        { shown: qsTr("Page up, Page down"), text: qsTr("One page up or down"),
          key: Qt.Key_PageUp, moves: true,
          run: function (extend) { keys.selection.movePages(-1, extend) } },
        { key: Qt.Key_PageDown, moves: true,
          run: function (extend) { keys.selection.movePages(1, extend) } },
        { shown: qsTr("Home, End"), text: qsTr("To the first or the last column"),
          key: Qt.Key_Home, moves: true, run: function (extend) { keys.move(0, -keys.far, extend) } },
        { key: Qt.Key_End, moves: true, run: function (extend) { keys.move(0, keys.far, extend) } },
        { shown: qsTr("Ctrl+Home, Ctrl+End"), text: qsTr("To the first or the last row"),
          key: Qt.Key_Home, modifiers: Qt.ControlModifier, moves: true,
          run: function (extend) { keys.move(-keys.far, 0, extend) } },
        { key: Qt.Key_End, modifiers: Qt.ControlModifier, moves: true,
          run: function (extend) { keys.move(keys.far, 0, extend) } },
        { shown: qsTr("Ctrl+A"), text: qsTr("Select everything"), key: Qt.Key_A,
          modifiers: Qt.ControlModifier, run: function () { keys.selection.selectAll() } },
        { shown: qsTr("Ctrl+C"), text: qsTr("Copy the selected cells"), key: Qt.Key_C,
          modifiers: Qt.ControlModifier, run: function () { keys.copyRequested(false) } },
        { shown: qsTr("Ctrl+Shift+C"), text: qsTr("Copy them with the headers"), key: Qt.Key_C,
          modifiers: Qt.ControlModifier | Qt.ShiftModifier,
          run: function () { keys.copyRequested(true) } },
        { shown: qsTr("Space"), text: qsTr("Exclude the selected rows, or take them in again"),
          key: Qt.Key_Space, run: function () { keys.selection.toggleExcluded() } },
        { shown: qsTr("Enter"), text: qsTr("Show the row in the plot"), key: Qt.Key_Return,
          run: function () { keys.plotRequested() } },
        { key: Qt.Key_Enter, run: function () { keys.plotRequested() } },
        { shown: qsTr("W"), text: qsTr("Show the column in its whole width, or narrow again"),
          key: Qt.Key_W, run: function () { keys.selection.toggleWidth() } },
        { shown: qsTr("Ctrl+F"), text: qsTr("Find text"), key: Qt.Key_F,
          modifiers: Qt.ControlModifier, run: function () { keys.findRequested() } },
        { shown: qsTr("F3, Shift+F3"), text: qsTr("The next match, the one before"),
          key: Qt.Key_F3, run: function () { keys.findAgainRequested(false) } },
        { key: Qt.Key_F3, modifiers: Qt.ShiftModifier,
          run: function () { keys.findAgainRequested(true) } },
        { shown: qsTr("Escape"), text: qsTr("Select nothing"), key: Qt.Key_Escape,
          run: function () { keys.selection.clear() } }
    ]

    // What is to be said; some keys are told together with others.
    readonly property var told: bindings.filter(function (entry) { return entry.shown })

    function move(rows, columns, extend) { selection.move(rows, columns, extend) }
    function handle(event) {
        var pressed = event.modifiers & ~Qt.KeypadModifier
        var extend = (pressed & Qt.ShiftModifier) !== 0
        var binding = bindings.find(function (entry) {
            var modifiers = entry.moves ? pressed & ~Qt.ShiftModifier : pressed
            return entry.key === event.key && (entry.modifiers || 0) === modifiers
        })
        if (!binding)
            return
        binding.run(extend)
        event.accepted = true
    }
}
