import QtQuick 2.15
import "."

AppText {
    color: Theme.mutedText
    font.pixelSize: Theme.smallTextSize
    font.bold: true
}
