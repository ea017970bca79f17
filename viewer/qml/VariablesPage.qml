import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import DataLogViewer 1.0
import "."

// The variables, to be put on axes; the state of each axis on top.
ColumnLayout {
    id: page

    property alias dataSets: table.dataSets
    property alias view: table.view

    function toggleCurrent(axis) {
        if (list.currentIndex >= 0)
            table.toggle(list.currentIndex, axis)
    }

    spacing: 0

    VariableTable {
        id: table
        objectName: "variableTable"
        search: field.text
        chosenOnly: chosen.checked
    }
    AxisHeads {
        Layout.fillWidth: true
        table: table
        onLeftOut: (axis === 2 ? rightNote : leftNote).leftOut = count
    }
    RowLayout {
        Layout.fillWidth: true
        Layout.margins: Theme.gap / 2
        spacing: Theme.gap / 2

        TouchField {
            id: field
            objectName: "variableSearch"
            Layout.fillWidth: true
            placeholderText: qsTr("Search")
            inputMethodHints: Qt.ImhNoPredictiveText
            rightPadding: clearKey.visible ? clearKey.width : Theme.margin
            Accessible.name: qsTr("Search variables by name, group or unit")
            Keys.onEscapePressed: field.clear()
            Keys.onDownPressed: list.forceActiveFocus()

            TouchButton {
                id: clearKey
                objectName: "clearSearch"
                anchors.right: parent.right
                width: Theme.target
                focusPolicy: Qt.NoFocus
                visible: field.text !== ""
                text: "×"
                Accessible.name: qsTr("Clear the search")
                background: null
                onClicked: field.clear()
            }
        }
        TouchButton {
            id: chosen
            objectName: "chosenOnly"
            text: qsTr("Chosen")
            checkable: true
            primary: checked
            Accessible.description: qsTr("Lists only what is on an axis")
        }
    }
    ListView {
        id: list
        objectName: "variables"
        Layout.fillWidth: true
        Layout.fillHeight: true
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        keyNavigationEnabled: true
        highlightMoveDuration: 0
        currentIndex: -1
        onActiveFocusChanged: if (activeFocus && currentIndex < 0 && count > 0) currentIndex = 0
        Keys.onPressed: {
            var axis = [Qt.Key_X, Qt.Key_L, Qt.Key_R].indexOf(event.key)
            event.accepted = axis >= 0 && event.modifiers === Qt.NoModifier
            if (event.accepted)
                page.toggleCurrent(axis)
        }
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Variables")
        ScrollBar.vertical: ScrollBar {}
        model: table
        section.property: "group"
        section.delegate: Rectangle {
            width: list.width
            height: 26
            color: Theme.page
            AppText {
                anchors.fill: parent
                leftPadding: Theme.gap
                text: section
                color: Theme.mutedText
                font.pixelSize: Theme.smallTextSize
                font.bold: true
            }
        }
        delegate: VariableRow {
            objectName: "variableRow" + index
            width: list.width
            isCurrent: ListView.isCurrentItem && list.activeFocus
            name: model.name
            unit: model.unit
            onX: model.onX
            onLeft: model.onLeft
            onRight: model.onRight
            leftColor: model.leftColor
            rightColor: model.rightColor
            onTapped: {
                list.currentIndex = index
                list.forceActiveFocus()
            }
            onToggled: table.toggle(index, axis)
        }

        AppText {
            objectName: "noVariables"
            anchors.centerIn: parent
            width: parent.width - 2 * Theme.margin
            visible: table.count === 0
            text: field.text !== "" ? qsTr("No variable has “%1” in its name, group or unit.")
                                      .arg(field.text)
                                    : chosen.checked ? qsTr("No variable is on an axis.")
                                                     : qsTr("There are no variables.")
            color: Theme.mutedText
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            elide: Text.ElideNone
        }
    }
    GridLayout {
        Layout.fillWidth: true
        Layout.fillHeight: false
        columns: leftNote.isTerse && rightNote.isTerse ? 2 : 1
        columnSpacing: 0
        rowSpacing: 0

        CrowdNote {
            id: leftNote
            objectName: "leftNote"
            Layout.fillWidth: true
            count: table.leftCount
            onCountChanged: leftOut = 0
            onLatestRequested: table.chooseLatest(1)
        }
        CrowdNote {
            id: rightNote
            objectName: "rightNote"
            Layout.fillWidth: true
            isRight: true
            count: table.rightCount
            onCountChanged: leftOut = 0
            onLatestRequested: table.chooseLatest(2)
        }
    }
}
