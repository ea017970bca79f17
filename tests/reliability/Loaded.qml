// A source and a view of each kind on it, in a loader that can be switched.
import QtQuick 2.15
import DataLog 1.0

Item {
    property string path
    property alias active: loader.active
    property int loads: 0
    property int curves: 0

    width: 300
    height: 200

    Loader {
        id: loader
        anchors.fill: parent
        sourceComponent: Item {
            anchors.fill: parent
            LogViewerItem {
                anchors.fill: parent
                dataSource: logSource
                onPlotUpdated: ++curves
            }
            LogTableViewItem { width: 100; height: 100; dataSource: logSource; logViewerViewOption: LogTableViewItem.Data }
            LogVariableListItem { width: 100; height: 100; dataSource: logSource; variableListAxis: LogVariableListItem.VariableListAxis_Y }
            LogDataSetListItem { width: 100; height: 100; dataSource: logSource }
            LogDataSetFilterListItem { width: 100; height: 100; dataSource: logSource }
            LogDataFilterBuilderItem { width: 100; height: 100; dataSource: logSource }
            DataLog { id: textFile }
            LogDataSourceItem {
                id: logSource
                onLogFileLoaded: {
                    ++loads
                    selectDataSet(0)
                    setHorizontalVariable("Obs")
                    setLeftVariable("a")
                    buildFilter(2, 0, "1")
                }
                Component.onCompleted: logFilePath = path
            }
        }
    }
}
