import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import DataLogViewer 1.0
import "."

// The limits of all axes, to be typed.
Popup {
    id: popup

    property PlotNavigator navigator
    readonly property var rows: [xRow, leftRow, rightRow]

    function apply() {
        var isDone = true
        navigator.joinSteps(true)
        for (var i = 0; i < rows.length; ++i)
            isDone = rows[i].apply() && isDone
        navigator.joinSteps(false)
        if (isDone)
            close()
    }

    parent: Overlay.overlay
    anchors.centerIn: parent
    width: Math.min(520, parent ? parent.width - 2 * Theme.gap : 520)
    padding: 2 * Theme.margin
    modal: true
    focus: true
    onAboutToShow: {
        rightRow.visible = navigator.isShown(PlotNavigator.Right)
        leftRow.visible = navigator.isShown(PlotNavigator.Left)
        rows.forEach(function (row) { row.fill() })
    }

    background: PopupFrame {}
    contentItem: ColumnLayout {
        spacing: Theme.margin

        AppText {
            text: qsTr("Limits of the axes")
            font.pixelSize: Theme.titleSize
            font.bold: true
        }
        LimitsRow {
            id: xRow
            objectName: "limitsX"
            navigator: popup.navigator
            axis: PlotNavigator.Bottom
            title: qsTr("X")
            onAccepted: popup.apply()
        }
        LimitsRow {
            id: leftRow
            objectName: "limitsLeft"
            navigator: popup.navigator
            axis: PlotNavigator.Left
            title: qsTr("Left")
            onAccepted: popup.apply()
        }
        LimitsRow {
            id: rightRow
            objectName: "limitsRight"
            navigator: popup.navigator
            axis: PlotNavigator.Right
            title: qsTr("Right")
            onAccepted: popup.apply()
        }
        RowLayout {
            spacing: Theme.gap
            Layout.alignment: Qt.AlignRight

            TouchButton {
                objectName: "cancelLimits"
                text: qsTr("Cancel")
                onClicked: popup.close()
            }
            TouchButton {
                objectName: "applyLimits"
                text: qsTr("Apply")
                primary: true
                onClicked: popup.apply()
            }
        }
    }
}
