import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import "."

// Asks for a number, to be tapped or typed.
Popup {
    id: pad

    property alias title: titleText.text
    property alias text: field.text
    property bool isBegun: false // what is there is typed on, else it is replaced

    signal entered(bool isToBeAdded)

    function enter(isToBeAdded) {
        if (!field.acceptableInput)
            return
        close()
        entered(isToBeAdded)
    }
    function tap(key) {
        if (key === "⌫")
            field.selectedText !== "" ? field.remove(field.selectionStart, field.selectionEnd)
                                      : field.remove(field.cursorPosition - 1, field.cursorPosition)
        else if (key === "±")
            field.text = field.text.charAt(0) === "-" ? field.text.substring(1) : "-" + field.text
        else
            insert(key)
    }
    function insert(key) {
        if (field.selectedText !== "")
            field.remove(field.selectionStart, field.selectionEnd)
        field.insert(field.cursorPosition, key)
    }

    parent: Overlay.overlay
    anchors.centerIn: parent
    width: 4 * 64 + 3 * Theme.gap + 2 * padding
    padding: Theme.margin
    modal: true
    focus: true
    onOpened: {
        field.forceActiveFocus()
        if (!isBegun)
            field.selectAll()
    }
    background: PopupFrame {}

    contentItem: ColumnLayout {
        spacing: Theme.gap

        AppText {
            id: titleText
            objectName: "padTitle"
            Layout.fillWidth: true
            color: Theme.mutedText
        }
        TouchField {
            id: field
            objectName: "padValue"
            Layout.fillWidth: true
            placeholderText: qsTr("Value")
            font.pixelSize: Theme.titleSize
            focus: true
            // Logs write numbers this way everywhere. Criteria compare in single precision.
            validator: DoubleValidator { locale: "C"; bottom: -3.4e38; top: 3.4e38 }
            inputMethodHints: Qt.ImhFormattedNumbersOnly
            onAccepted: pad.enter(true)
        }
        GridLayout {
            columns: 4
            rowSpacing: Theme.gap
            columnSpacing: Theme.gap

            Repeater {
                model: ["7", "8", "9", "⌫", "4", "5", "6", "±", "1", "2", "3", ".", "0"]
                TouchButton {
                    objectName: "key" + modelData
                    Layout.fillWidth: true
                    Layout.preferredWidth: 64
                    Layout.columnSpan: modelData === "0" ? 4 : 1
                    focusPolicy: Qt.NoFocus
                    text: modelData
                    autoRepeat: modelData === "⌫"
                    Accessible.name: modelData === "⌫" ? qsTr("Delete")
                                                       : modelData === "±" ? qsTr("Sign") : text
                    onClicked: pad.tap(modelData)
                }
            }
        }
        RowLayout {
            spacing: Theme.gap

            TouchButton {
                objectName: "padCancel"
                Layout.fillWidth: true
                text: qsTr("Cancel")
                onClicked: pad.close()
            }
            TouchButton {
                objectName: "padSet"
                Layout.fillWidth: true
                text: qsTr("Set")
                enabled: field.acceptableInput
                onClicked: pad.enter(false)
            }
            TouchButton {
                objectName: "padAdd"
                Layout.fillWidth: true
                text: qsTr("Add")
                primary: true
                enabled: field.acceptableInput
                onClicked: pad.enter(true)
            }
        }
    }
}
