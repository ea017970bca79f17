import QtQuick 2.15
import QtQuick.Dialogs 1.3

// Asks for the file of a setup, to save or to apply it.
FileDialog {
    property bool isSaving: false

    title: isSaving ? qsTr("Save the setup") : qsTr("Apply a setup")
    selectExisting: !isSaving
    defaultSuffix: "json"
    nameFilters: [qsTr("Everything (*.json)"), qsTr("Variables and criteria (*.xml)")]
}
