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
        if (dataSets.names.length === 0)
            return logLoader.bytesTotal === 0 ? qsTr("%1 is empty.").arg(logLoader.fileName)
                                              : qsTr("There is no data set in %1.").arg(logLoader.fileName)
        if (dataSets.variableNames.length === 0)
            return qsTr("There is no data in this data set.")
        return qsTr("Nothing to show: tick a variable for the X axis and one for the left or the "
                    + "right axis, with lines or symbols on.")
    }

    // Shows what is set: neither the module nor a setup announces it.
    function sync() {
        panel.sync()
        plotPane.readings.adoptHidden()
    }

    width: Math.min(1280, Screen.desktopAvailableWidth)
    height: Math.min(800, Screen.desktopAvailableHeight)
    minimumWidth: 640
    minimumHeight: 400
    title: logLoader.fileName
    color: Theme.page
    font.family: Theme.family
    font.pixelSize: Theme.textSize
    palette {
        window: Theme.surface
        windowText: Theme.text
        base: Theme.surface
        text: Theme.text
        button: Theme.surface
        buttonText: Theme.text
        mid: Theme.mutedText
        dark: Theme.mutedText
        highlight: Theme.accent
        highlightedText: Theme.accentText
        toolTipBase: Theme.page
        toolTipText: Theme.text
    }
    onClosing: {
        logLoader.cancel()
        close.accepted = plotPane.leave()
    }

    LogDataSourceItem {
        id: dataSource
        objectName: "dataSource"
    }
    LogLoader {
        id: logLoader
        source: dataSource
        onOpened: {
            if (opening.takeOpened())
                return
            if (window.setup.apply(dataSets, plotPane.view))
                window.sync()
            // The plot's keys work at once.
            if (views.showsPlot && !window.Overlay.overlay.visible)
                plotPane.takeKeys()
        }
    }
    DataSets {
        id: dataSets
        source: dataSource
    }
    CriteriaKeeper { source: dataSource }
    HorizontalChoice { source: dataSource }

    Opening {
        id: opening
        objectName: "opening"
        loader: logLoader
        dataSets: dataSets
        view: plotPane.view
        isHeld: plotPane.isSaving
        onRemembered: views.keepSelection()
        onRestored: {
            window.sync()
            Qt.callLater(views.bringBackSelection) // once the table has the rows that are plotted
        }
        onSetupDropped: setupActions.apply(file)
    }

    SetupActions {
        id: setupActions
        dataSets: dataSets
        view: plotPane.view
        setup: window.setup
        onApplied: window.sync()
    }
    Comfort {
        id: comfort
        window: window
        views: views
        plotKeys: plotPane.keys
        keys.onMenuRequested: bar.openMenu()
        keys.onOpenRequested: opening.ask()
        keys.onReloadRequested: opening.reload()
        keys.onSaveSetupRequested: if (logLoader.loaded) setupActions.ask(true)
        keys.onApplySetupRequested: if (logLoader.loaded) setupActions.ask(false)
    }
    header: TopBar {
        id: bar
        fileName: logLoader.fileName
        busy: logLoader.reading
        hasLog: logLoader.loaded
        hasFile: logLoader.filePath !== ""
        following: opening.following
        refreshing: logLoader.refreshing
        recent: opening.recent
        troubles: opening.troubles
        onOpenRequested: opening.ask()
        onRecentRequested: opening.openRecent(path)
        onReloadRequested: opening.reload()
        onFollowToggled: opening.following = !opening.following
        isNarrow: window.isNarrow
        onHelpRequested: comfort.showHelp()
        onRowRequested: {
            dataSets.choose(dataSet)
            views.showRow(row)
        }
        onSaveRequested: setupActions.ask(true)
        onApplyRequested: setupActions.ask(false)
    }
    footer: Column {
        NoticeBar {
            width: parent.width
            textName: "openingNotice"
            dismissName: "dismissOpeningNotice"
            text: opening.notice
            isGood: false
            isLasting: opening.isLasting
            onDismissed: opening.dismiss()
        }
        NoticeBar {
            width: parent.width
            text: setupActions.notice
            isGood: setupActions.isGood
            onDismissed: setupActions.dismiss()
        }
    }
    RowLayout {
        anchors.fill: parent
        spacing: 0
        enabled: logLoader.loaded

        SidePanel {
            id: panel
            visible: Preferences.panelShown
            Layout.preferredWidth: window.isNarrow ? 288 : 336
            Layout.fillHeight: true
            source: dataSource
            view: plotPane.view
            dataSets: dataSets
        }
        Views {
            id: views
            Layout.fillWidth: true
            Layout.fillHeight: true
            source: dataSource
            onPlotEntered: plotPane.takeKeys()
            onPlotRowRequested: {
                if (plotPane.showRow(row))
                    views.show(0)
                else
                    views.noteNotPlotted()
            }

            PlotPane {
                id: plotPane
                anchors.fill: parent
                source: dataSource
                hint: window.hint
                filePath: logLoader.filePath
                onTableRowRequested: views.showRow(row)
                onLeaveRequested: window.close()
            }
        }
    }
    ErrorPane {
        objectName: "errorPane"
        anchors.fill: parent
        text: logLoader.errorText
        isCancelled: logLoader.cancelled
        onOpenRequested: opening.ask()
        before: opening.before
        onRetryRequested: opening.reload()
        onBackRequested: opening.goBack()
    }
    RefreshLine {
        objectName: "refreshLine"
        width: parent.width
        loader: logLoader
    }
    ReadingPane {
        anchors.fill: parent
        loader: logLoader
    }
    DropLayer {
        // Over header and footer as well.
        parent: window.contentItem.parent
        anchors.fill: parent
        onTaken: opening.take(files)
    }
}
