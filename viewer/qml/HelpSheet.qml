import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import "."

// All keys and gestures on one sheet, made from the lists that the keys are made from.
Popup {
    id: sheet

    // Each with a title and its keys.
    property var sections: []
    readonly property int columns: width >= 1000 ? 3 : width >= 640 ? 2 : 1

    parent: Overlay.overlay
    anchors.centerIn: parent
    width: parent ? Math.min(1180, parent.width - 2 * Theme.margin) : 0
    height: parent ? Math.min(implicitHeight, parent.height - 2 * Theme.margin) : 0
    padding: Theme.margin
    modal: true
    focus: true
    onOpened: {
        scroller.contentY = 0
        scroller.forceActiveFocus()
    }
    background: PopupFrame {}

    // The sections, one below the other in each column, as even as they get.
    function column(number) {
        var heights = Array(columns).fill(0)
        return sections.filter(function (section) {
            var shortest = heights.indexOf(Math.min.apply(null, heights))
            heights[shortest] += section.keys.length + 2
            return shortest === number
        })
    }

    contentItem: ColumnLayout {
        spacing: Theme.gap

        RowLayout {
            AppText {
                Layout.fillWidth: true
                leftPadding: Theme.gap
                text: qsTr("Keys and gestures")
                font.pixelSize: Theme.titleSize
                font.bold: true
            }
            TouchButton {
                objectName: "closeHelp"
                text: qsTr("Close")
                onClicked: sheet.close()
            }
        }
        Flickable {
            id: scroller
            objectName: "helpScroller"

            readonly property real page: height - 2 * Theme.target

            function scrollBy(pixels) {
                contentY = Math.max(0, Math.min(contentY + pixels, contentHeight - height))
            }

            Layout.fillWidth: true
            Layout.fillHeight: true
            implicitHeight: contentHeight
            contentHeight: row.implicitHeight
            boundsBehavior: Flickable.StopAtBounds
            activeFocusOnTab: true
            clip: true
            Accessible.role: Accessible.Document
            Accessible.name: qsTr("Keys and gestures")
            Keys.onDownPressed: scrollBy(Theme.target)
            Keys.onUpPressed: scrollBy(-Theme.target)
            Keys.onPressed: {
                if (event.key === Qt.Key_PageDown)
                    scrollBy(page)
                else if (event.key === Qt.Key_PageUp)
                    scrollBy(-page)
            }
            ScrollBar.vertical: ScrollBar {}

            Row {
                id: row
                width: scroller.width

                Repeater {
                    model: sheet.columns
                    Column {
                        width: row.width / sheet.columns
                        Repeater {
                            model: sheet.column(index)
                            KeySection {
                                width: parent.width
                                title: modelData.title
                                keys: modelData.keys
                            }
                        }
                    }
                }
            }
        }
    }
}
