import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

// A control with its name before it.
RowLayout {
    property alias text: label.text

    Layout.fillWidth: true
    spacing: Theme.gap

    AppText {
        id: label
        Layout.fillWidth: true
    }
}
