import QtQuick 2.15
import DataLogViewer 1.0
import "."

// Asks for the file of a setup, to save or to apply it.
PlaceDialog {
    property bool isSaving: false

    function ask() {
        show([Preferences.folder(Preferences.Setups), Preferences.folder(Preferences.Logs)])
    }

    title: isSaving ? qsTr("Save the setup") : qsTr("Apply a setup")
    selectExisting: !isSaving
    defaultSuffix: "json"
    nameFilters: [qsTr("Everything (*.json)"), qsTr("Variables and criteria (*.xml)")]
}
