import QtQuick 2.15
import DataLog 1.0
import DataLogViewer 1.0
import "."

LogVariableListItem {
    id: hosted

    property alias source: hosted.dataSource
    property alias axis: hosted.variableListAxis
    property ListStyle style: ListStyle {
        rowHeight: Theme.target
        list: hosted
    }
}
