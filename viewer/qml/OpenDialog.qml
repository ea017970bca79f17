import QtQuick 2.15
import QtQuick.Dialogs 1.3

FileDialog {
    title: qsTr("Open a log")
    nameFilters: [qsTr("Logs (*.log *.txt *.tsv *.csv *.xls *.xlsx)"), qsTr("All files (*)")]
}
