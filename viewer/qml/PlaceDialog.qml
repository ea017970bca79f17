import QtQuick 2.15
import QtQuick.Dialogs 1.3
import DataLogViewer 1.0
import "."

// A dialog for files that begins in a folder.
FileDialog {
    // The first of several that is known. Qt's own dialog takes it only once it is there.
    function show(places) {
        var known = places.concat([shortcuts.home]).filter(function(place) {
            return place.toString() !== ""
        })
        folder = known[0]
        open()
        folder = known[0]
        look.apply(Theme.isDark)
    }

    property QtObject look: FileDialogStyle {}
}
