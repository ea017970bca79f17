import QtQuick 2.15
import "."

// Keys that belong together, each with what it does.
Column {
    id: section

    property string title
    property var keys: []

    leftPadding: Theme.gap
    rightPadding: Theme.margin
    bottomPadding: Theme.margin
    spacing: 4

    SectionTitle {
        text: section.title
        bottomPadding: 2
    }
    Repeater {
        model: section.keys
        Row {
            id: row
            spacing: Theme.gap
            width: section.width - section.leftPadding - section.rightPadding

            Rectangle {
                id: cap
                width: Math.max(112, shown.implicitWidth + 12)
                height: shown.implicitHeight + 6
                radius: 4
                color: Theme.page
                border.color: Theme.border
                AppText {
                    id: shown
                    objectName: "helpKey"
                    anchors.centerIn: parent
                    text: modelData.shown
                    font.pixelSize: Theme.smallTextSize
                    font.bold: true
                }
            }
            AppText {
                objectName: "helpText"
                width: row.width - cap.width - row.spacing
                topPadding: 3
                text: modelData.text
                font.pixelSize: Theme.smallTextSize
                wrapMode: Text.Wrap
                elide: Text.ElideNone
            }
        }
    }
}
