import QtQuick 2.15
import DataLog 1.0
import DataLogEnums 1.0

Item {
    LogViewerItem {
        width: 200; height: 100
        dataSource: source
    }
    LogDataSourceItem {
        id: source
        onLogFileLoaded: {
            selectDataSet(0)
            console.log("read " + logFilePath + ": " + variableList.length + " variables, "
                        + dataSetList.length + " block, enumeration " + ObservationFilterRange.Tail)
            Qt.quit()
        }
        onLogFileError: {
            console.log(error)
            Qt.quit()
        }
        Component.onCompleted: logFilePath = "one-block.log"
    }
}
