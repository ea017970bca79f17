import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import DataLog 1.0
import DataLogEnums 1.0
import "."

// How curves are drawn, and which rows of the log.
Flickable {
    id: page

    property QtObject source
    property QtObject view
    readonly property bool isWindowed: rangeType.currentIndex !== ObservationFilterRange.All

    // Shows what is set: the module's settings don't announce their changes.
    function sync() {
        var definition = source.graphDefinition()
        leftStyle.show(definition.yleft)
        rightStyle.show(definition.yright)
        rangeType.currentIndex = source.observationFilterType
        rangeSize.value = source.observationRange
        step.value = source.observationFrequency
    }

    contentWidth: width
    contentHeight: column.implicitHeight + 2 * Theme.margin
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    ScrollBar.vertical: ScrollBar {}

    ColumnLayout {
        id: column
        x: Theme.margin
        y: Theme.margin
        width: page.width - 2 * Theme.margin
        spacing: Theme.gap

        SectionTitle { text: qsTr("Left axis") }
        CurveStyle {
            id: leftStyle
            objectName: "leftStyle"
            color: Theme.leftAxis
            onLinesToggled: page.view.setLinesEnabled(LogViewerItem.LeftAxis, on)
            onSymbolsToggled: page.view.setSymbolsEnabled(LogViewerItem.LeftAxis, on)
        }
        SectionTitle { text: qsTr("Right axis") }
        CurveStyle {
            id: rightStyle
            objectName: "rightStyle"
            color: Theme.rightAxis
            onLinesToggled: page.view.setLinesEnabled(LogViewerItem.RightAxis, on)
            onSymbolsToggled: page.view.setSymbolsEnabled(LogViewerItem.RightAxis, on)
        }
        SectionTitle { text: qsTr("Rows") }
        TouchComboBox {
            id: rangeType
            objectName: "rangeType"
            Accessible.name: qsTr("Rows")
            Layout.fillWidth: true
            model: [qsTr("All rows"), qsTr("The first rows"), qsTr("The last rows")]
            onActivated: page.source.observationFilterType = index
        }
        Field {
            text: qsTr("How many")
            visible: page.isWindowed
            TouchSpinBox {
                id: rangeSize
                objectName: "rangeSize"
                Accessible.name: qsTr("How many")
                onValueModified: page.source.observationRange = value
            }
        }
        Field {
            text: qsTr("Every k-th")
            TouchSpinBox {
                id: step
                objectName: "step"
                Accessible.name: qsTr("Every k-th")
                onValueModified: page.source.observationFrequency = value
            }
        }
    }
}
