// The main road as a script goes it: one data source, and a view of each kind on it.
import QtQuick 2.15
import DataLog 1.0
import DataLogEnums 1.0

Item {
    id: root

    property alias source: logSource
    property alias plot: plot
    property alias leftList: leftList
    property string loadError
    property int plotUpdates: 0

    width: 800
    height: 400

    // What a script sees, handed to the test as plain values.
    function names(list) {
        var result = []
        for (var i = 0; i < list.length; ++i)
            result.push(list[i].value)
        return result.join(",")
    }
    function variableNames() { return names(logSource.variableList) }
    function dataSetNames() { return names(logSource.dataSetList) }
    function groupNames() { return names(logSource.groupList) }
    function constNames() { return names(logSource.constList) }
    function criteriaNames() { return names(logSource.criteriaList) }
    function leftGroupVariables() { return names(logSource.leftVariables) }
    function definition() { return JSON.stringify(logSource.graphDefinition()) }
    function checked(list) { return logSource.checkedItemList(list).join(",") }
    function enumerations() {
        return [ObservationFilterRange.All, ObservationFilterRange.Head,
                ObservationFilterRange.Tail, LogViewerAxis.LeftAxis, LogViewerAxis.RightAxis,
                LogViewerAxis.BottomAxis, LogViewerAxis.HeaderView, LogViewerAxis.DataSetView,
                LogViewerAxis.PlotView, LogVariableListItem.VariableListAxis_X,
                LogVariableListItem.VariableListAxis_Y,
                LogVariableListItem.VariableListAxis_Z].join(",")
    }
    function showAll() { logSource.observationFilterType = ObservationFilterRange.All }
    function drawLines() {
        plot.setLinesEnabled(LogViewerAxis.LeftAxis, true)
        plot.setLinesEnabled(LogViewerAxis.RightAxis, true)
    }
    function fixScale() { plot.setAxisScale(LogViewerAxis.LeftAxis, -5, 45) }

    LogDataSourceItem {
        id: logSource
        onLogFileLoaded: selectDataSet(0)
        onLogFileError: root.loadError = error
    }
    LogDataSetListItem {
        x: 0; y: 0; width: 150; height: 200
        dataSource: logSource
    }
    LogVariableListItem {
        id: leftList
        x: 150; y: 0; width: 150; height: 200
        variableListAxis: LogVariableListItem.VariableListAxis_Y
        dataSource: logSource
    }
    LogVariableListItem {
        x: 300; y: 0; width: 150; height: 200
        variableListAxis: LogVariableListItem.VariableListAxis_X
        dataSource: logSource
    }
    LogDataSetFilterListItem {
        x: 450; y: 0; width: 150; height: 200
        dataSource: logSource
    }
    LogViewerItem {
        id: plot
        x: 0; y: 200; width: 800; height: 200
        dataSource: logSource
        onPlotUpdated: ++root.plotUpdates
    }
}
