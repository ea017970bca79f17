import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Window 2.15
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
            visible: enabled || Window.height >= 600
            opacity: 1
            font.pixelSize: Theme.smallTextSize
            Accessible.name: qsTr("Data set")
            onActivated: panel.dataSets.choose(index)
        }
        Tabs {
            id: tabs
            objectName: "pageTabs"
            Layout.fillWidth: true
            titles: [qsTr("Variables"), qsTr("Display")]
        }
        StackLayout {
            currentIndex: tabs.currentIndex
            VariablesPage {
                dataSets: panel.dataSets
                view: panel.view
            }
            DisplayPage {
                id: displayPage
                source: panel.source
                view: panel.view
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
