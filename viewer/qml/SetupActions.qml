import QtQuick 2.15
import DataLogViewer 1.0

// Saving what is shown, and bringing it back.
Item {
    id: actions

    property alias dataSets: files.dataSets
    property alias view: files.view
    property alias setup: files.setup
    readonly property alias notice: files.notice
    readonly property alias isGood: files.isGood

    signal applied()

    function ask(isSaving) {
        dialog.active = true
        dialog.item.isSaving = isSaving
        dialog.item.ask()
    }
    function apply(file) { files.apply(file) }
    function dismiss() { files.dismiss() }

    SetupFiles {
        id: files
        objectName: "setupFiles"
        onApplied: actions.applied()
    }
    Loader {
        id: dialog
        objectName: "setupDialog"
        active: false
        source: "SetupDialog.qml"
    }
    Connections {
        target: dialog.item
        function onAccepted() {
            Preferences.keepFolderOf(dialog.item.fileUrl, Preferences.Setups)
            if (dialog.item.isSaving)
                files.save(dialog.item.fileUrl)
            else
                files.apply(dialog.item.fileUrl)
        }
    }
}
