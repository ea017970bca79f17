import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import QtQuick.Window 2.15
import DataLog 1.0
import DataLogViewer 1.0
import "."

ApplicationWindow {
    id: window

    property QtObject setup
    readonly property bool isNarrow: width < 1000
    readonly property string hint: {
        if (!logLoader.loaded)
            return ""
        if (dataSets.variableNames.length === 0)
            return qsTr("There is no data in this data set.")
        return qsTr("Nothing to show: tick a variable for the X axis and one for the left or the "
                    + "right axis, with lines or symbols on.")
    }

    function openLog() {
        dialog.active = true
        dialog.item.open()
    }

    width: Math.min(1280, Screen.desktopAvailableWidth)
    height: Math.min(800, Screen.desktopAvailableHeight)
    minimumWidth: 640
    minimumHeight: 400
    visible: true
    title: logLoader.fileName
    color: Theme.page
    font.family: Theme.family
    font.pixelSize: Theme.textSize
    onClosing: logLoader.cancel()

    LogDataSourceItem {
        id: dataSource
        objectName: "dataSource"
    }
    LogLoader {
        id: logLoader
        source: dataSource
        onOpened: {
            if (window.setup.apply(dataSets, plotPane.view))
                panel.sync()
        }
    }
    DataSets {
        id: dataSets
        source: dataSource
    }
    CriteriaKeeper { source: dataSource }
    HorizontalChoice { source: dataSource }

    Loader {
        id: dialog
        active: false
        source: "OpenDialog.qml"
    }
    Connections {
        target: dialog.item
        function onAccepted() { logLoader.openUrl(dialog.item.fileUrl) }
    }

    header: TopBar {
        fileName: logLoader.fileName
        busy: logLoader.reading
        onOpenRequested: window.openLog()
    }
    RowLayout {
        anchors.fill: parent
        spacing: 0
        enabled: logLoader.loaded

        SidePanel {
            id: panel
            Layout.preferredWidth: window.isNarrow ? 288 : 336
            Layout.fillHeight: true
            source: dataSource
            view: plotPane.view
            dataSets: dataSets
        }
        PlotPane {
            id: plotPane
            Layout.fillWidth: true
            Layout.fillHeight: true
            source: dataSource
            hint: window.hint
        }
    }
    ErrorPane {
        objectName: "errorPane"
        anchors.fill: parent
        visible: logLoader.errorText !== ""
        text: logLoader.errorText
        onOpenRequested: window.openLog()
    }
    ReadingPane {
        anchors.fill: parent
        loader: logLoader
    }
}
