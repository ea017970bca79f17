import QtQuick 2.15
import QtQuick.Layouts 1.15
import DataLog 1.0
import DataLogViewer 1.0
import "."

// The criteria: a row to add one, and a list to tick and remove them.
Rectangle {
    id: pane

    property QtObject source

    function takeKeys() { builder.forceActiveFocus(Qt.TabFocusReason) }
    // Starts with what is typed already, or else with the number as it stands.
    function enterNumber(typed) {
        builderStyle.leaveField()
        pad.isBegun = typed !== undefined
        pad.text = pad.isBegun ? typed : builderStyle.text
        pad.open()
    }

    implicitHeight: column.implicitHeight
    color: Theme.surface

    ColumnLayout {
        id: column
        anchors.fill: parent
        spacing: Theme.gap

        LogDataFilterBuilderItem {
            id: builder
            objectName: "builder"
            Layout.fillWidth: true
            Layout.preferredHeight: Theme.target
            Layout.topMargin: Theme.gap
            dataSource: pane.source
            onClearFilters: pane.source.clearCriteria()
            // Not within the press that asks for it, which still goes on.
            onStartEditing: Qt.callLater(pane.enterNumber)
            Accessible.role: Accessible.Grouping
            Accessible.name: qsTr("New criterion")
            // A number can be typed wherever in the row the keyboard is.
            Keys.onPressed: {
                if (!/^[0-9.\-]$/.test(event.text))
                    return
                event.accepted = true
                pane.enterNumber(event.text)
            }
        }
        LogDataSetFilterListItem {
            id: hosted
            objectName: "criteriaList"
            Accessible.role: Accessible.Grouping // around the list, which tells the rest
            Accessible.name: qsTr("Criteria")
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredHeight: 3 * Theme.target
            visible: listStyle.count > 0
            dataSource: pane.source
        }
        AppText {
            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.margins: Theme.margin
            visible: listStyle.count === 0
            text: qsTr("There are no criteria. Curves show only the values that meet all ticked "
                       + "criteria on their variable.")
            color: Theme.mutedText
            wrapMode: Text.Wrap
            elide: Text.ElideNone
            horizontalAlignment: Text.AlignHCenter
        }
    }
    BottomLine {}
    BuilderStyle {
        id: builderStyle
        isDark: Theme.isDark
        Component.onCompleted: builderStyle.builder = builder
    }
    CriteriaListStyle {
        id: listStyle
        rowHeight: Theme.target
        isDark: Theme.isDark
        item: hosted
        source: pane.source
    }
    NumberPad {
        id: pad
        title: builderStyle.comparison
        onEntered: {
            builderStyle.text = text
            if (isToBeAdded)
                builderStyle.add()
        }
    }
}
