// The smallest complete script of an instrument: it opens a log, chooses what to plot, and shows
// the plot beside the list of variables. MinimalQuick1.qml is for Qt 4.8 and MinimalQuick2.qml for
// Qt 5; they are the same text but for the first import.
import QtQuick 1.1
import DataLog 1.0
import DataLogEnums 1.0

Rectangle {
    id: screen

    property string logFile: "climate-chamber.log"

    width: 800
    height: 480

    LogDataSourceItem {
        id: source

        // A log that was read shows nothing until one of its data sets is chosen.
        onLogFileLoaded: {
            selectDataSet(0)
            observationFilterType = ObservationFilterRange.All
            setHorizontalVariable("Obs")
            setLeftVariable("Tair")
        }
        onLogFileError: message.text = error
        // After a change of the criteria the plot is empty until something computes it anew.
        onCriteriaUpdated: observationFrequency = observationFrequency
    }

    LogVariableListItem {
        id: variables
        anchors { left: parent.left; top: parent.top; bottom: table.top }
        width: 200
        variableListAxis: LogVariableListItem.VariableListAxis_Y
        dataSource: source
    }
    LogViewerItem {
        id: plot
        anchors { left: variables.right; right: parent.right; top: parent.top; bottom: table.top }
        dataSource: source
    }
    // The place for a table of the rows.
    Rectangle {
        id: table
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: 60
        color: "#F3F5F7"

        Text {
            id: message
            anchors.centerIn: parent
            text: screen.logFile
        }
    }

    Component.onCompleted: {
        plot.setLinesEnabled(LogViewerAxis.LeftAxis, true)
        source.logFilePath = logFile
    }
}
