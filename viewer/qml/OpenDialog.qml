import QtQuick 2.15
import QtQuick.Dialogs 1.3
import DataLogViewer 1.0

FileDialog {
    title: qsTr("Open a log")
    folder: Preferences.folder.toString() !== "" ? Preferences.folder : shortcuts.home
    nameFilters: [qsTr("Logs (*.log *.datalog *.txt *.tsv *.csv *.xls *.xlsx)"), qsTr("All files (*)")]
}
