import QtQuick 2.15
import "."

// What pop-ups stand on.
Rectangle {
    radius: Theme.radius
    color: Theme.surface
    border.color: Theme.border
}
