import QtQuick 2.15
import QtQuick.Layouts 1.15
import DataLogViewer 1.0
import "."

// What can be done with the selected cells, and a field that finds text.
Rectangle {
    id: bar

    property TableSelection selection
    property TableSearch search
    property bool hasRows: true // of the log, which are plotted and can be excluded
    property int rowCount: 0
    property int logRowCount: 0
    property bool finds: false
    property string note // what came of the last thing done

    signal copyRequested(bool withHeader)
    signal plotRequested()
    signal left() // the keyboard is wanted in the table again

    readonly property bool hasSelection: selection.rowCount > 0 && selection.columnCount > 0
    readonly property string selectionText: {
        if (note !== "")
            return note
        if (hasSelection)
            return qsTr("%L1 × %L2 selected").arg(selection.rowCount).arg(selection.columnCount)
        if (!hasRows)
            return ""
        return rowCount < logRowCount ? qsTr("Rows: %L1 of %L2").arg(rowCount).arg(logRowCount)
                                      : qsTr("Rows: %L1").arg(rowCount)
    }
    readonly property string matchText: {
        if (search.text === "")
            return ""
        if (search.searching && search.count === 0)
            return qsTr("%1 %").arg(Math.floor(100 * search.progress))
        if (search.count === 0)
            return qsTr("Not found")
        var count = search.searching ? qsTr("%L1 …").arg(search.count)
                                     : qsTr("%L1").arg(search.count)
        return search.number > 0 ? qsTr("%L1 of %2").arg(search.number).arg(count) : count
    }

    function openFind() {
        finds = true
        field.forceActiveFocus()
        field.selectAll()
    }
    function closeFind() {
        finds = false
        field.text = ""
        left()
    }

    implicitHeight: Theme.target + Theme.gap
    color: Theme.surface

    Connections {
        target: bar.selection
        function onChanged() { bar.note = "" }
    }
    RowLayout {
        visible: !bar.finds
        anchors.fill: parent
        anchors.leftMargin: Theme.gap
        anchors.rightMargin: Theme.gap
        spacing: 6

        IconButton {
            objectName: "find"
            name: qsTr("Find text")
            keys: qsTr("Ctrl+F")
            picture: "zoom-text"
            onClicked: bar.openFind()
        }
        IconButton {
            objectName: "extend"
            name: qsTr("Tap to select up to there")
            keys: qsTr("Shift")
            picture: "extend"
            enabled: bar.hasSelection
            isSwitch: true
            checked: bar.selection.extending
            onClicked: bar.selection.extending = !bar.selection.extending
        }
        IconButton {
            objectName: "copy"
            name: qsTr("Copy the selected cells")
            keys: qsTr("Ctrl+C")
            picture: "copy"
            enabled: bar.hasSelection
            onClicked: bar.copyRequested(false)
        }
        IconButton {
            objectName: "copyWithHeader"
            name: qsTr("Copy the selected cells with their headers")
            keys: qsTr("Ctrl+Shift+C")
            picture: "copy-header"
            enabled: bar.hasSelection
            onClicked: bar.copyRequested(true)
        }
        IconButton {
            objectName: "toggleExcluded"
            name: qsTr("Exclude the selected rows, or take them in again")
            keys: qsTr("Space")
            picture: "exclude"
            enabled: bar.hasSelection && bar.hasRows
            onClicked: bar.selection.toggleExcluded()
        }
        IconButton {
            objectName: "showInPlot"
            name: qsTr("Show the row in the plot")
            keys: qsTr("Enter")
            picture: "curve"
            enabled: bar.hasSelection && bar.hasRows
            onClicked: bar.plotRequested()
        }
        AppText {
            objectName: "selectionText"
            Layout.fillWidth: true
            text: bar.selectionText
            color: Theme.mutedText
            font.pixelSize: Theme.smallTextSize
            horizontalAlignment: Text.AlignRight
            wrapMode: Text.Wrap
            maximumLineCount: 2
        }
    }
    RowLayout {
        visible: bar.finds
        anchors.fill: parent
        anchors.leftMargin: Theme.gap
        anchors.rightMargin: Theme.gap
        spacing: 6

        TouchField {
            id: field
            objectName: "findField"
            Layout.fillWidth: true
            placeholderText: qsTr("Find text")
            onTextChanged: bar.search.text = text
            Keys.onReturnPressed: event.modifiers & Qt.ShiftModifier ? bar.search.previous()
                                                                     : bar.search.next()
            Keys.onEnterPressed: bar.search.next()
            Keys.onUpPressed: bar.search.previous()
            Keys.onDownPressed: bar.search.next()
            Keys.onEscapePressed: bar.closeFind()
            Keys.onPressed: {
                if (event.key !== Qt.Key_F3)
                    return
                event.accepted = true
                event.modifiers & Qt.ShiftModifier ? bar.search.previous() : bar.search.next()
            }
        }
        AppText {
            objectName: "matchText"
            Layout.minimumWidth: 84
            text: bar.matchText
            color: bar.search.text !== "" && !bar.search.searching && bar.search.count === 0
                   ? Theme.error : Theme.mutedText
            font.pixelSize: Theme.smallTextSize
            horizontalAlignment: Text.AlignHCenter
        }
        IconButton {
            objectName: "findPrevious"
            focusPolicy: Qt.TabFocus // a click leaves the keyboard in the field
            name: qsTr("The match before")
            keys: qsTr("Shift+Enter")
            picture: "up"
            enabled: bar.search.count > 0
            onClicked: bar.search.previous()
        }
        IconButton {
            objectName: "findNext"
            focusPolicy: Qt.TabFocus // a click leaves the keyboard in the field
            name: qsTr("The next match")
            keys: qsTr("Enter")
            picture: "down"
            enabled: bar.search.count > 0
            onClicked: bar.search.next()
        }
        IconButton {
            objectName: "closeFind"
            name: qsTr("Close")
            keys: qsTr("Escape")
            picture: "close"
            onClicked: bar.closeFind()
        }
    }
    BottomLine {}
}
