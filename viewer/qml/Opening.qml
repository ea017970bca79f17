import QtQuick 2.15
import DataLogViewer 1.0

// The ways to a log: a dialog, the recent files, a drop, reading it again, following it.
Item {
    id: opening

    property QtObject loader
    property alias dataSets: reloader.dataSets
    property alias view: reloader.view
    property alias following: follower.following
    readonly property alias recent: recentFiles
    readonly property alias troubles: troubles
    // The log that was shown before the one that could not be read.
    readonly property string before:
        loader.errorText !== "" && reloader.rememberedPath !== loader.filePath
        ? reloader.rememberedPath : ""
    property string message
    property var waiting: null // what to do when the read that goes on has ended
    property bool isHeld: false // what is followed stays as it is for now, and is looked at again
    // What is the matter with a file that is followed comes before what happened earlier.
    readonly property bool isLasting: follower.gone || isUnreadable
    readonly property bool isUnreadable: following && loader.refreshError !== ""
    readonly property string notice: {
        if (follower.gone)
            return qsTr("%1 is gone. It is followed, and shown again when it is back.")
                   .arg(loader.fileName)
        if (isUnreadable)
            return qsTr("%1. What was read before is shown until it can be read again.")
                   .arg(loader.refreshError.replace(/\.$/, ""))
        return message
    }

    // What is shown may have to be shown again.
    signal remembered()
    // The same log is open again, and shown as before.
    signal restored()
    signal setupDropped(url file)

    onIsHeldChanged: if (isHeld) loader.giveUpRefresh()

    function ask() {
        dialog.active = true
        dialog.item.ask()
    }
    function openUrl(file) { openWith(file, []) }
    // Setups are applied to it then.
    function openWith(file, setups) {
        message = ""
        Preferences.keepFolderOf(file, Preferences.Logs)
        whenIdle(function() {
            reloader.remember()
            if (loader.openUrl(file))
                setups.forEach(function(setup) { setupDropped(setup) })
        })
    }
    // A dialog or a list may still be open when a log is read again that is followed: what is asked
    // for takes the place of what is being read.
    function whenIdle(action) {
        if (!loader.reading) {
            action()
            return
        }
        waiting = action
        loader.cancel()
    }
    function open(path) {
        message = ""
        whenIdle(function() {
            reloader.remember()
            loader.open(path)
        })
    }
    function openRecent(path) {
        if (recentFiles.isThere(path)) {
            open(path)
        } else {
            message = qsTr("%1: there is no such file any more").arg(path)
            recentFiles.refresh()
        }
    }
    function goBack() { open(before) }
    function reload() {
        reloader.reload()
    }
    function dismiss() { message = "" }

    function isSetup(file) {
        return /\.(json|xml)$/i.test(String(file))
    }
    // The first log is opened; setups are applied to what is open then.
    function take(files) {
        var logs = files.filter(function(file) { return !isSetup(file) })
        var setups = files.filter(isSetup)
        if (logs.length > 0) {
            openWith(logs[0], setups)
            if (logs.length > 1)
                message = qsTr("One log is shown at a time: only the first of %1 was opened.")
                          .arg(logs.length)
        } else if (loader.loaded) {
            setups.forEach(function(setup) { setupDropped(setup) })
        } else {
            message = qsTr("A setup needs a log to be applied to: open one first.")
        }
    }
    // To be called when a log was opened; whether it is shown already.
    function takeOpened() {
        if (recentFiles.add(loader.filePath))
            Preferences.keepFolderOfPath(loader.filePath, Preferences.Logs)
        if (!reloader.restore())
            return false
        // What was told stays when nobody asked for the log to be read again.
        if (reloader.remarks !== "")
            message = qsTr("Not shown as before: %1").arg(reloader.remarks)
        else if (!loader.refreshing)
            message = ""
        restored()
        return true
    }

    RecentFiles {
        id: recentFiles
        objectName: "recentFiles"
    }
    LogReloader {
        id: reloader
        loader: opening.loader
        onRemembered: opening.remembered()
    }
    LogFollower {
        id: follower
        objectName: "follower"
        loader: opening.loader
        onChanged: {
            // Nothing was open when reading it failed.
            if (opening.loader.loaded && !opening.isHeld)
                opening.loader.refresh()
            else if (!opening.loader.loaded && !opening.loader.cancelled)
                opening.reload()
        }
    }
    LogTroubles {
        id: troubles
        objectName: "troubles"
        loader: opening.loader
    }
    Loader {
        id: dialog
        objectName: "openDialog"
        active: false
        source: "OpenDialog.qml"
    }
    Connections {
        target: opening.loader
        function onReadingChanged() {
            if (opening.loader.reading || !opening.waiting)
                return
            var action = opening.waiting
            opening.waiting = null
            Qt.callLater(action)
        }
    }
    Connections {
        target: dialog.item
        function onAccepted() { opening.openUrl(dialog.item.fileUrl) }
    }
}
