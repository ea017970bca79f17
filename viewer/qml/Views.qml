import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Window 2.15
import DataLogViewer 1.0
import "."

// What is shown of the log beside what there is to choose: the plot, which is declared inside, the
// table, and the criteria, with the plot below them where there is room for both.
ColumnLayout {
    id: views

    default property alias plot: plotSpace.data
    property QtObject source

    readonly property bool showsTable: tabs.currentIndex === 1
    readonly property bool showsFilter: tabs.currentIndex === 2
    readonly property bool showsPlot: tabs.currentIndex === 0
                                      || (showsFilter && Window.height >= 600)

    signal plotRowRequested(int row)
    signal plotEntered()

    function show(index) { tabs.currentIndex = index }
    // Shows a view, and the keyboard goes there.
    function enter(index) {
        show(index)
        if (showsTable)
            table.item.takeKeys()
        else if (showsFilter)
            filter.takeKeys()
        else
            plotEntered()
    }
    // Rows of the log; -1 is none.
    function showRow(row) {
        if (row < 0)
            return
        show(1)
        table.item.showRow(row)
    }
    // Over a log that is read again.
    function keepSelection() { if (table.item) table.item.keepSelection() }
    function bringBackSelection() { if (table.item) table.item.bringBackSelection() }
    function noteNotPlotted() { table.item.noteNotPlotted() }

    spacing: 0

    ExcludedRows {
        id: excluded
        source: views.source
    }
    Rectangle {
        Layout.fillWidth: true
        implicitHeight: Theme.target
        color: Theme.surface

        RowLayout {
            anchors.fill: parent
            spacing: 0

            Tabs {
                id: tabs
                objectName: "viewTabs"
                Layout.fillWidth: true
                titles: [qsTr("Plot"), qsTr("Table"), qsTr("Filter")]
            }
            TouchButton {
                objectName: "clearExcluded"
                visible: excluded.count > 0
                text: qsTr("Clear excluded (%L1)").arg(excluded.count)
                Accessible.description: qsTr("Plots the excluded points again")
                onClicked: excluded.clear()
            }
        }
    }
    // Made when it is first looked at: most looks at a log are at its plot.
    Loader {
        id: table
        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: views.showsTable
        onVisibleChanged: if (visible) active = true
        active: false
        sourceComponent: TablePane {
            source: views.source
            onPlotRequested: views.plotRowRequested(row)
        }
    }
    FilterPane {
        id: filter
        Layout.fillWidth: true
        Layout.fillHeight: !views.showsPlot
        visible: views.showsFilter
        source: views.source
    }
    Item {
        id: plotSpace
        Layout.fillWidth: true
        Layout.fillHeight: true
        visible: views.showsPlot
    }
}
