import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

// Tabs that share a row evenly.
TabBar {
    id: bar

    property var titles: []

    implicitHeight: Theme.target
    background: Rectangle {
        color: Theme.surface
        BottomLine {}
    }

    Repeater {
        model: bar.titles.length
        TabButton {
            id: tab
            implicitHeight: Theme.target
            text: bar.titles[index]
            Accessible.role: Accessible.PageTab
            Accessible.name: text
            contentItem: AppText {
                text: tab.text
                font.pixelSize: Theme.smallTextSize + 1
                font.bold: tab.checked
                color: tab.checked ? Theme.text : Theme.mutedText
                horizontalAlignment: Text.AlignHCenter
            }
            background: Rectangle {
                color: tab.down ? Theme.pressed : "transparent"
                border.width: tab.visualFocus ? 2 : 0
                border.color: Theme.text
                Rectangle {
                    anchors.bottom: parent.bottom
                    width: parent.width
                    height: 3
                    color: Theme.accent
                    visible: tab.checked
                }
            }
        }
    }
}
