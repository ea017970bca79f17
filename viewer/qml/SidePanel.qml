import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

// Everything there is to choose.
Rectangle {
    id: panel

    property QtObject source
    property QtObject view
    property QtObject dataSets

    function sync() { displayPage.sync() }

    color: Theme.surface

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        TouchComboBox {
            objectName: "dataSetChoice"
            Layout.fillWidth: true
            Layout.margins: Theme.gap
            model: panel.dataSets.names
            currentIndex: panel.dataSets.current
            enabled: count > 1
            opacity: 1
            font.pixelSize: Theme.smallTextSize
            Accessible.name: qsTr("Data set")
            onActivated: panel.dataSets.choose(index)
        }
        Tabs {
            id: tabs
            objectName: "pageTabs"
            Layout.fillWidth: true
            titles: [qsTr("Variables"), qsTr("Display"), qsTr("Criteria")]
        }
        StackLayout {
            currentIndex: tabs.currentIndex
            VariablesPage {
                source: panel.source
            }
            DisplayPage {
                id: displayPage
                source: panel.source
                view: panel.view
            }
            CriteriaPage {
                source: panel.source
                variableNames: panel.dataSets.variableNames
            }
        }
    }
    Rectangle {
        anchors.right: parent.right
        width: 1
        height: parent.height
        color: Theme.border
    }
}
