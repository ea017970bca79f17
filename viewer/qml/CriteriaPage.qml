import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import DataLog 1.0
import DataLogViewer 1.0
import "."

// The criteria, and a row to add one.
ColumnLayout {
    id: page

    property QtObject source
    property var variableNames: []
    property int criteriaCount: 0
    property bool isVariableChosen: false

    function add() {
        if (!addButton.enabled)
            return
        source.buildFilter(variable.currentIndex, operator.currentIndex, value.text)
        value.clear()
    }

    // What is plotted is what one wants to filter, until another variable is chosen.
    function suggestVariable() {
        if (isVariableChosen)
            return
        var plotted = source.checkedItemList(1).concat(source.checkedItemList(2))
        variable.currentIndex = plotted.length > 0 ? plotted[0] : variable.count > 0 ? 0 : -1
    }

    spacing: Theme.gap

    Connections {
        target: page.source
        function onGraphDataUpdated() { page.suggestVariable() }
        function onCriteriaUpdated() { page.criteriaCount = page.source.criteriaList.length }
    }
    AppText {
        Layout.fillWidth: true
        Layout.margins: Theme.margin
        Layout.bottomMargin: 0
        visible: page.height > 400
        text: qsTr("Curves show only the values that meet all ticked criteria on their variable.")
        color: Theme.mutedText
        font.pixelSize: Theme.smallTextSize
        wrapMode: Text.Wrap
        elide: Text.ElideNone
    }
    TouchComboBox {
        id: variable
        objectName: "criterionVariable"
        Layout.fillWidth: true
        Layout.leftMargin: Theme.margin
        Layout.rightMargin: Theme.margin
        Layout.topMargin: Theme.gap
        model: page.variableNames
        onModelChanged: page.isVariableChosen = false
        onActivated: page.isVariableChosen = true
        Accessible.name: qsTr("Variable")
    }
    RowLayout {
        Layout.fillWidth: true
        Layout.leftMargin: Theme.margin
        Layout.rightMargin: Theme.margin
        spacing: Theme.gap

        TouchComboBox {
            id: operator
            objectName: "criterionOperator"
            Layout.preferredWidth: 76
            model: [">", ">=", "<", "<=", "=", "!="]
            Accessible.name: qsTr("Operator")
        }
        TouchField {
            id: value
            objectName: "criterionValue"
            Layout.fillWidth: true
            Layout.preferredWidth: 60
            placeholderText: qsTr("Value")
            // Logs write numbers this way everywhere.
            // Criteria compare in single precision.
            validator: DoubleValidator { locale: "C"; bottom: -3.4e38; top: 3.4e38 }
            inputMethodHints: Qt.ImhFormattedNumbersOnly
            onAccepted: page.add()
        }
        TouchButton {
            id: addButton
            objectName: "addCriterion"
            text: qsTr("Add")
            primary: true
            enabled: value.acceptableInput && variable.currentIndex >= 0
            onClicked: page.add()
        }
    }
    LogDataSetFilterListItem {
        id: hosted
        objectName: "criteriaList"
        Layout.fillWidth: true
        Layout.fillHeight: true
        dataSource: page.source
        visible: page.criteriaCount > 0

        property ListStyle style: ListStyle {
            rowHeight: Theme.target
            list: hosted
        }
    }
    AppText {
        Layout.fillWidth: true
        Layout.fillHeight: true
        Layout.margins: Theme.margin
        visible: page.criteriaCount === 0
        text: qsTr("There are no criteria.")
        color: Theme.mutedText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignTop
    }
    TouchButton {
        objectName: "clearCriteria"
        Layout.fillWidth: true
        Layout.margins: Theme.margin
        Layout.topMargin: 0
        visible: page.criteriaCount > 0
        text: qsTr("Clear all")
        onClicked: page.source.clearCriteria()
    }
}
