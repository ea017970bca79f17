import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

// How far something is that takes long.
ProgressBar {
    id: bar

    background: Rectangle {
        implicitHeight: 8
        radius: 4
        color: Theme.border
    }
    contentItem: Item {
        implicitHeight: 8
        Rectangle {
            width: bar.visualPosition * parent.width
            height: parent.height
            radius: 4
            color: Theme.accent
        }
    }
}
