import QtQuick 2.15

// The keys that do the same wherever the keyboard is, each with what there is to say about it.
Item {
    id: keys

    signal helpRequested()
    signal menuRequested()
    signal openRequested()
    signal reloadRequested()
    signal saveSetupRequested()
    signal applySetupRequested()
    signal panelToggled()
    signal viewRequested(int index)
    signal fullScreenToggled()
    signal quitRequested()

    readonly property var bindings: [
        { shown: "F1", text: qsTr("This sheet"), sequence: "F1",
          run: function () { keys.helpRequested() } },
        { shown: "F10", text: qsTr("The menu"), sequence: "F10",
          run: function () { keys.menuRequested() } },
        { shown: qsTr("Ctrl+O"), text: qsTr("Open a log"), sequence: "Ctrl+O",
          run: function () { keys.openRequested() } },
        { shown: "F5", text: qsTr("Read the log again"), sequence: "F5",
          run: function () { keys.reloadRequested() } },
        { shown: qsTr("Ctrl+S"), text: qsTr("Save the setup"), sequence: "Ctrl+S",
          run: function () { keys.saveSetupRequested() } },
        { shown: qsTr("Ctrl+Shift+O"), text: qsTr("Apply a setup"), sequence: "Ctrl+Shift+O",
          run: function () { keys.applySetupRequested() } },
        { shown: qsTr("Ctrl+1"), text: qsTr("The plot"), sequence: "Ctrl+1",
          run: function () { keys.viewRequested(0) } },
        { shown: qsTr("Ctrl+2"), text: qsTr("The table"), sequence: "Ctrl+2",
          run: function () { keys.viewRequested(1) } },
        { shown: qsTr("Ctrl+3"), text: qsTr("The filter"), sequence: "Ctrl+3",
          run: function () { keys.viewRequested(2) } },
        { shown: "F9", text: qsTr("Show or hide the side panel"), sequence: "F9",
          run: function () { keys.panelToggled() } },
        { shown: "F11", text: qsTr("Full screen, or a window again"), sequence: "F11",
          run: function () { keys.fullScreenToggled() } },
        { shown: qsTr("Ctrl+Q"), text: qsTr("Leave"), sequence: "Ctrl+Q",
          run: function () { keys.quitRequested() } }
    ]

    Repeater {
        model: keys.bindings.length // a copy of the list would have lost its functions
        Item {
            Shortcut {
                sequence: keys.bindings[index].sequence
                onActivated: keys.bindings[index].run()
            }
        }
    }
}
