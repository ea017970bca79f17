import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import DataLogViewer 1.0
import "."

// Saves the plot as a picture of a chosen size, or its data.
Popup {
    id: popup

    property alias view: saver.view
    property string logPath

    readonly property var kinds: ["png", "svg", "pdf", "csv"]
    readonly property string suffix: kinds[kind.currentIndex]
    // A file is replaced only after the user has seen that it is there.
    property string replaceable
    readonly property bool isSaving: saver.saving
    property bool isLong: false // a short save would only flicker
    property bool isLeaving: false // the window is to close, and waits for the file

    signal leaveRequested()

    // True when the window can close now: nothing is saved, or who closes it twice gives that up.
    function leave() {
        if (saver.saving && !isLeaving) {
            isLeaving = true
            return false
        }
        saver.cancel()
        return true
    }

    function suggestion(suffix) {
        return saver.suggestion(logPath, suffix, Preferences.folder(Preferences.Exports))
    }
    function suggest() {
        path.text = suggestion(suffix)
        forget()
    }
    // Whoever saves beside the log wants that for the next log as well.
    function keepFolder() {
        if (saver.areNeighbours(path.text, logPath))
            Preferences.forgetFolder(Preferences.Exports)
        else
            Preferences.keepFolderOfPath(path.text, Preferences.Exports)
    }
    function forget() {
        problem.text = ""
        done.text = ""
        replaceable = ""
    }
    function save() {
        if (saver.exists(path.text) && replaceable !== path.text) {
            forget()
            replaceable = path.text
            return
        }
        forget()
        isLong = false
        problem.text = saver.save(path.text, pixelWidth.value, pixelHeight.value)
        var wasLeaving = isLeaving
        isLeaving = false
        if (problem.text !== "")
            return
        done.text = qsTr("Saved %1").arg(path.text)
        keepFolder()
        if (wasLeaving)
            leaveRequested()
    }

    parent: Overlay.overlay
    anchors.centerIn: parent
    width: Math.min(560, parent ? parent.width - 2 * Theme.gap : 560)
    padding: 2 * Theme.margin
    modal: true
    focus: true
    closePolicy: saver.saving ? Popup.NoAutoClose : Popup.CloseOnEscape | Popup.CloseOnPressOutside
    onIsSavingChanged: if (isSaving) closeKey.forceActiveFocus() // what had the keyboard is off
    onAboutToShow: {
        if (path.text === "" || logPath !== path.log)
            suggest()
        path.log = logPath
        forget()
    }

    PlotSaver { id: saver }
    Timer {
        interval: 200
        running: saver.saving
        onTriggered: popup.isLong = true
    }
    Loader {
        id: browser
        objectName: "saveDialog"
        active: false
        sourceComponent: PlaceDialog {
            title: qsTr("Save as")
            selectExisting: false
            nameFilters: [qsTr("Pictures and data (*.png *.svg *.pdf *.csv)"),
                          qsTr("All files (*)")]
            onAccepted: {
                path.text = saver.localPath(fileUrl)
                popup.forget()
                // The dialog has asked already.
                if (saver.exists(path.text))
                    popup.replaceable = path.text
            }
        }
    }

    background: PopupFrame {}
    contentItem: ColumnLayout {
        spacing: Theme.margin

        AppText {
            text: qsTr("Save the plot or its data")
            font.pixelSize: Theme.titleSize
            font.bold: true
        }
        TouchComboBox {
            id: kind
            objectName: "saveKind"
            enabled: !saver.saving
            Layout.fillWidth: true
            model: [qsTr("Picture (PNG)"), qsTr("Drawing (SVG)"), qsTr("Document (PDF)"),
                    qsTr("Data of all ticked variables (CSV)")]
            Accessible.name: qsTr("What to save")
            onActivated: {
                var old = popup.suggestion(path.suffix)
                path.text = path.text === old ? popup.suggestion(popup.suffix)
                                              : saver.withSuffix(path.text, popup.suffix)
                path.suffix = popup.suffix
                popup.forget()
            }
        }
        RowLayout {
            visible: popup.suffix !== "csv"
            enabled: !saver.saving
            spacing: Theme.gap

            AppText {
                Layout.fillWidth: true
                text: qsTr("Size in pixels")
            }
            TouchSpinBox {
                id: pixelWidth
                objectName: "saveWidth"
                from: 100
                to: 16384
                stepSize: 10
                value: 1280
                Accessible.name: qsTr("Width in pixels")
                Layout.preferredWidth: 150
            }
            AppText { text: "×" }
            TouchSpinBox {
                id: pixelHeight
                objectName: "saveHeight"
                from: 100
                to: 16384
                stepSize: 10
                value: 800
                Accessible.name: qsTr("Height in pixels")
                Layout.preferredWidth: 150
            }
        }
        RowLayout {
            spacing: Theme.gap

            TouchField {
                id: path

                property string log
                property string suffix: "png"

                objectName: "savePath"
                enabled: !saver.saving
                Layout.fillWidth: true
                placeholderText: qsTr("File")
                onTextEdited: popup.forget()
                onAccepted: popup.save()
            }
            TouchButton {
                objectName: "browse"
                text: qsTr("Browse…")
                enabled: !saver.saving
                onClicked: {
                    browser.active = true
                    browser.item.show([saver.folderOf(path.text)])
                }
            }
        }
        ProgressLine {
            objectName: "saveProgress"
            Layout.fillWidth: true
            visible: saver.saving && popup.isLong
            value: saver.progress
            Accessible.name: qsTr("Saving")
        }
        AppText {
            objectName: "saveLeaving"
            Layout.fillWidth: true
            visible: popup.isLeaving
            text: qsTr("The window closes once this is saved. Close it again to give up saving.")
            wrapMode: Text.Wrap
            elide: Text.ElideNone
        }
        AppText {
            id: problem
            objectName: "saveProblem"
            Layout.fillWidth: true
            visible: text !== ""
            color: Theme.error
            wrapMode: Text.WrapAtWordBoundaryOrAnywhere
            elide: Text.ElideNone
        }
        AppText {
            objectName: "saveExists"
            Layout.fillWidth: true
            visible: popup.replaceable !== ""
            text: qsTr("This file exists already.")
            color: Theme.error
        }
        AppText {
            id: done
            objectName: "saveDone"
            Layout.fillWidth: true
            visible: text !== ""
            wrapMode: Text.WrapAtWordBoundaryOrAnywhere
            elide: Text.ElideNone
        }
        RowLayout {
            spacing: Theme.gap
            Layout.alignment: Qt.AlignRight

            TouchButton {
                id: closeKey
                objectName: "closeSave"
                text: saver.saving ? qsTr("Cancel") : qsTr("Close")
                onClicked: saver.saving ? saver.cancel() : popup.close()
                Keys.onEscapePressed: {
                    event.accepted = saver.saving
                    saver.cancel()
                }
            }
            TouchButton {
                objectName: "save"
                text: popup.replaceable !== "" ? qsTr("Replace it") : qsTr("Save")
                primary: true
                enabled: path.text !== "" && !saver.saving
                onClicked: popup.save()
            }
        }
    }
}
