import QtQuick 2.15
import DataLogViewer 1.0
import "."

PlaceDialog {
    function ask() { show([Preferences.folder(Preferences.Logs)]) }

    title: qsTr("Open a log")
    nameFilters: [qsTr("Logs (*.log *.datalog *.txt *.tsv *.csv *.xls *.xlsx)"), qsTr("All files (*)")]
}
