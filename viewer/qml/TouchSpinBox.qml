import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

// A whole number from 1 on, to be typed or stepped.
SpinBox {
    id: box

    from: 1
    to: 99999999
    editable: true
    opacity: enabled ? 1 : 0.45
    implicitHeight: Theme.target
    implicitWidth: 168
    leftPadding: Theme.target
    rightPadding: Theme.target
    font.family: Theme.family
    font.pixelSize: Theme.textSize
    // Digits only: a reader of the locale's separators is not needed to type a count.
    textFromValue: function (value) { return String(value) }
    valueFromText: function (text) { return Number(text) }
    validator: IntValidator { bottom: box.from; top: box.to }

    contentItem: TextInput {
        text: box.displayText
        font: box.font
        color: Theme.text
        selectByMouse: true
        selectionColor: Theme.accent
        selectedTextColor: Theme.accentText
        horizontalAlignment: Qt.AlignHCenter
        verticalAlignment: Qt.AlignVCenter
        readOnly: !box.editable
        validator: box.validator
        inputMethodHints: Qt.ImhDigitsOnly
        Accessible.name: box.Accessible.name // it is what has the keyboard
    }
    down.indicator: StepKey {
        text: "−"
        pressed: box.down.pressed
        opacity: box.value > box.from ? 1 : 0.4
    }
    up.indicator: StepKey {
        x: box.width - width
        text: "+"
        pressed: box.up.pressed
    }
    background: Rectangle {
        radius: Theme.radius
        color: Theme.surface
        border.color: box.activeFocus ? Theme.accent : Theme.border
        border.width: box.activeFocus ? 2 : 1
    }
}
