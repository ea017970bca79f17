import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

// Lines and symbols of one axis' curves.
RowLayout {
    id: row

    property color color

    signal linesToggled(bool on)
    signal symbolsToggled(bool on)

    function show(axis) {
        lines.checked = axis.lines === true
        symbols.checked = axis.symbols === true
    }

    Layout.fillWidth: true
    spacing: Theme.gap

    TouchSwitch {
        id: lines
        objectName: "lines"
        Layout.fillWidth: true
        text: qsTr("Lines")
        onColor: row.color
        onToggled: row.linesToggled(checked)
    }
    TouchSwitch {
        id: symbols
        objectName: "symbols"
        Layout.fillWidth: true
        text: qsTr("Symbols")
        onColor: row.color
        onToggled: row.symbolsToggled(checked)
    }
}
