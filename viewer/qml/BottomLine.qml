import QtQuick 2.15
import "."

// Ends a bar.
Rectangle {
    anchors.bottom: parent.bottom
    width: parent.width
    height: 1
    color: Theme.border
}
