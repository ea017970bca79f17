import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Window 2.15
import "."

ComboBox {
    id: combo

    implicitHeight: Theme.target
    font.family: Theme.family
    font.pixelSize: Theme.textSize
    opacity: enabled ? 1 : 0.45

    contentItem: AppText {
        leftPadding: Theme.margin
        rightPadding: combo.indicator.visible ? 2 * Theme.margin : Theme.margin
        text: combo.displayText
        font: combo.font
    }
    indicator: AppText {
        x: combo.width - width - Theme.margin
        height: combo.height
        text: "▾"
        color: Theme.mutedText
        visible: combo.enabled
    }
    background: Rectangle {
        radius: Theme.radius
        color: combo.down ? Theme.pressed : Theme.surface
        border.color: combo.visualFocus ? Theme.text : Theme.border
        border.width: combo.visualFocus ? 2 : 1
    }
    delegate: ItemDelegate {
        id: row
        width: combo.width
        height: Theme.target
        highlighted: combo.highlightedIndex === index
        text: modelData
        Accessible.name: text
        contentItem: AppText {
            text: row.text
            font.family: combo.font.family
            font.pixelSize: combo.font.pixelSize
            font.bold: combo.currentIndex === index
        }
        background: Rectangle {
            color: row.highlighted || row.down ? Theme.pressed : Theme.surface
        }
    }
    popup: Popup {
        y: combo.height + 2
        width: combo.width
        // As high as the window lets it be, for there may be many rows.
        height: Math.min(contentItem.implicitHeight + 2, combo.Window.height - 2 * Theme.gap)
        margins: Theme.gap
        padding: 1
        contentItem: ListView {
            clip: true
            implicitHeight: contentHeight
            model: combo.popup.visible ? combo.delegateModel : null
            currentIndex: combo.highlightedIndex
            boundsBehavior: Flickable.StopAtBounds
            ScrollBar.vertical: ScrollBar {}
        }
        background: PopupFrame {}
    }
}
