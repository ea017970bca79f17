import QtQuick 2.15
import QtQuick.Layouts 1.15
import DataLog 1.0
import DataLogViewer 1.0
import "."

// The log as a table: its header constants, its observations, or those of them that are plotted.
ColumnLayout {
    id: pane

    property QtObject source

    signal plotRequested(int row)

    function keepSelection() { selection.keep() }
    function bringBackSelection() { selection.bringBack() }
    // A row of the log, where a window shows it just among the observations.
    function showRow(row) {
        if (options.currentIndex === LogTableViewItem.Header)
            options.currentIndex = LogTableViewItem.Data
        if (!selection.showRow(row)) {
            options.currentIndex = LogTableViewItem.Data
            selection.showRow(row)
        }
        table.forceActiveFocus()
    }
    function takeKeys() { table.forceActiveFocus() }
    function copy(withHeader) {
        if (selection.copy(withHeader))
            bar.note = qsTr("%L1 cells copied").arg(selection.rowCount * selection.columnCount)
        else if (selection.tooLarge)
            bar.note = qsTr("Too many cells to copy: save the data as CSV")
    }
    function showInPlot() {
        if (selection.logRow >= 0)
            plotRequested(selection.logRow)
    }
    // With nothing to find yet, as after the field was closed, what to find is asked for.
    function findAgain(backwards) {
        if (search.text === "")
            bar.openFind()
        else if (backwards)
            search.previous()
        else
            search.next()
    }
    // What the plot says of a row it has no sample of.
    function noteNotPlotted() { bar.note = qsTr("This row is not plotted") }

    readonly property string hint: {
        if (options.currentIndex === LogTableViewItem.Header && columns.columnCount === 0)
            return qsTr("There are no header constants in this data set.")
        if (bar.hasRows && columns.rowCount === 0 && columns.logRowCount > 0)
            return qsTr("The criteria and the chosen range leave no row to plot.")
        if (columns.rowCount === 0 || columns.columnCount === 0)
            return qsTr("There is no data in this data set.")
        if (columns.shownColumnCount > 0)
            return ""
        if (options.currentIndex === LogTableViewItem.PlottedData)
            return qsTr("Nothing is plotted: tick a variable for the X axis and one for "
                        + "the left or the right axis.")
        return qsTr("All columns are hidden: choose some by \"Columns\".")
    }

    spacing: 0

    RowLayout {
        Layout.fillWidth: true
        spacing: 0

        // In the order of the table's options.
        Tabs {
            id: options
            objectName: "tableTabs"
            Layout.fillWidth: true
            currentIndex: LogTableViewItem.Data
            titles: [qsTr("Constants"), qsTr("Observations"), qsTr("Plotted")]
            onCurrentIndexChanged: columns.option = currentIndex
        }
        TouchButton {
            objectName: "columnsButton"
            text: qsTr("Columns")
            enabled: columns.groups.length > 0
            onClicked: groupsPopup.open()

            GroupsPopup {
                id: groupsPopup
                x: parent.width - width
                y: parent.height + 2
                columns: columns
            }
        }
    }
    TableToolBar {
        id: bar
        objectName: "tableBar"
        Layout.fillWidth: true
        selection: selection
        search: search
        hasRows: options.currentIndex !== LogTableViewItem.Header
        rowCount: columns.rowCount
        logRowCount: columns.logRowCount
        onCopyRequested: pane.copy(withHeader)
        onPlotRequested: pane.showInPlot()
        onLeft: table.forceActiveFocus()
    }
    TableKeys {
        id: keys
        objectName: "tableKeys"
        selection: selection
        onFindRequested: bar.openFind()
        onFindAgainRequested: pane.findAgain(backwards)
        onCopyRequested: pane.copy(withHeader)
        onPlotRequested: pane.showInPlot()
    }
    TableSelection {
        id: selection
        objectName: "tableSelection"
        table: table
    }
    TableSearch {
        id: search
        objectName: "tableSearch"
        table: table
    }
    Shortcut {
        sequence: StandardKey.Find
        enabled: pane.visible
        onActivated: bar.openFind()
    }
    Item {
        Layout.fillWidth: true
        Layout.fillHeight: true

        Rectangle {
            anchors.fill: parent
            color: Theme.surface
        }
        LogTableViewItem {
            id: table
            objectName: "table"
            Accessible.role: Accessible.Grouping // around the table, which tells the rest
            Accessible.name: qsTr("Table")
            anchors.fill: parent
            dataSource: pane.source
            Keys.priority: Keys.BeforeItem
            Keys.onPressed: keys.handle(event)
        }
        TableStyle {
            id: style
            item: table
            rowHeight: Preferences.compactRows ? Theme.compactRow : Theme.target
            isDark: Theme.isDark
            onRowHeightChanged: columns.refit()
        }
        TableColumns {
            id: columns
            Component.onCompleted: columns.table = table
            onChanged: {
                selection.update()
                search.recount()
            }
        }
        CellBubble {
            objectName: "cellBubble"
            cell: CutCell {
                id: cutCell
                // Not before the table has its style, and the header that comes with it.
                Component.onCompleted: cutCell.table = table
            }
        }
        Hint {
            visible: text !== ""
            text: pane.hint
            textName: "tableHint"
        }
    }
}
