import QtQuick 2.15
import "."

// Text as the viewer writes it; never taken for markup, for logs name what it shows.
Text {
    color: Theme.text
    font.family: Theme.family
    font.pixelSize: Theme.textSize
    textFormat: Text.PlainText
    elide: Text.ElideRight
    verticalAlignment: Text.AlignVCenter
}
