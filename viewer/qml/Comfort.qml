import QtQuick 2.15
import QtQuick.Window 2.15
import DataLogViewer 1.0
import "."

// The keys of the window and the sheet that shows these and all others.
Item {
    id: comfort

    property Window window
    property var views
    property QtObject plotKeys
    readonly property alias keys: windowKeys

    function showHelp() { sheet.open() }

    OtherKeys {
        id: others
        objectName: "otherKeys"
    }
    TableKeys { id: tableKeys }
    WindowKeys {
        id: windowKeys
        objectName: "windowKeys"
        onHelpRequested: comfort.showHelp()
        onPanelToggled: Preferences.panelShown = !Preferences.panelShown
        onViewRequested: comfort.views.enter(index)
        onFullScreenToggled: {
            if (comfort.window.visibility === Window.FullScreen)
                comfort.window.showNormal()
            else
                comfort.window.showFullScreen()
        }
        onQuitRequested: comfort.window.close()
    }
    HelpSheet {
        id: sheet
        objectName: "helpSheet"
        sections: [
            { title: qsTr("Plot"), keys: comfort.plotKeys.bindings },
            { title: qsTr("Everywhere"), keys: windowKeys.bindings },
            { title: qsTr("Table"), keys: tableKeys.told },
            { title: qsTr("Moving about"), keys: others.moving },
            { title: qsTr("Lists and tables"), keys: others.lists },
            { title: qsTr("Plot, by finger and mouse"), keys: others.pointing }
        ]
    }
}
