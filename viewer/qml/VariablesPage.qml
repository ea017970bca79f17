import QtQuick 2.15
import QtQuick.Layouts 1.15
import DataLog 1.0
import "."

// The variables of each axis, to be ticked.
ColumnLayout {
    id: page

    property QtObject source
    // How many variables are ticked: horizontal, left, right.
    property var counts: [0, 0, 0]

    function count() {
        var result = []
        for (var axis = 0; axis < 3; ++axis)
            result.push(source.checkedItemList(axis).length)
        counts = result
    }
    function title(name, count) {
        return count > 0 ? qsTr("%1 (%2)").arg(name).arg(count) : name
    }

    spacing: 0

    Connections {
        target: page.source
        function onGraphDataUpdated() { page.count() }
    }
    Tabs {
        id: tabs
        objectName: "axisTabs"
        Layout.fillWidth: true
        currentIndex: 1
        titles: [qsTr("X axis"), page.title(qsTr("Left"), page.counts[1]),
                 page.title(qsTr("Right"), page.counts[2])]
        colors: [Theme.text, Theme.leftAxis, Theme.rightAxis]
    }
    StackLayout {
        currentIndex: tabs.currentIndex
        VariableList {
            objectName: "xList"
            source: page.source
            axis: LogVariableListItem.VariableListAxis_X
        }
        VariableList {
            objectName: "leftList"
            source: page.source
            axis: LogVariableListItem.VariableListAxis_Y
        }
        VariableList {
            objectName: "rightList"
            source: page.source
            axis: LogVariableListItem.VariableListAxis_Z
        }
    }
}
