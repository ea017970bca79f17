import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import QtQuick.Window 2.15
import "."

// The logs that were opened lately, to be opened again or forgotten.
Popup {
    id: popup

    property QtObject recent

    readonly property int rowHeight: 52
    readonly property real wantedHeight:
        2 * padding + Theme.target + Math.max(1, list.count) * rowHeight

    signal chosen(string path)

    width: Math.min(460, parent.Window.width - 2 * Theme.gap)
    height: Math.min(wantedHeight, parent.Window.height - parent.height - 3 * Theme.gap)
    margins: Theme.gap
    padding: Theme.gap
    focus: true
    onAboutToShow: recent.refresh()
    onOpened: {
        list.currentIndex = 0
        list.forceActiveFocus()
    }
    background: PopupFrame {}

    // No layout of rows: it would keep the sizes of the list that it was made with.
    contentItem: Item {
        RowLayout {
            id: head
            width: parent.width
            height: Theme.target
            spacing: Theme.gap

            SectionTitle {
                Layout.fillWidth: true
                Layout.leftMargin: Theme.gap
                text: qsTr("Opened lately")
            }
            TouchButton {
                objectName: "clearRecent"
                text: qsTr("Clear")
                visible: list.count > 0
                Accessible.name: qsTr("Forget all of them")
                onClicked: popup.recent.clear()
            }
        }
        ListView {
            id: list
            objectName: "recentList"
            anchors.top: head.bottom
            anchors.bottom: parent.bottom
            width: parent.width
            clip: true
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Opened lately")
            boundsBehavior: Flickable.StopAtBounds
            ScrollBar.vertical: ScrollBar {}
            keyNavigationEnabled: true
            highlightMoveDuration: 0
            model: popup.recent
            Keys.onReturnPressed: if (currentItem) currentItem.open()
            Keys.onEnterPressed: if (currentItem) currentItem.open()
            Keys.onDeletePressed: if (currentItem) popup.recent.remove(currentIndex)

            AppText {
                objectName: "noRecent"
                anchors.verticalCenter: parent.verticalCenter
                leftPadding: Theme.gap
                visible: list.count === 0
                text: qsTr("None yet.")
                color: Theme.mutedText
            }
            delegate: ItemDelegate {
                id: row

                function open() {
                    var path = model.path
                    popup.close()
                    Qt.callLater(function() { popup.chosen(path) })
                }

                objectName: "recent" + index
                width: list.width
                height: popup.rowHeight
                highlighted: ListView.isCurrentItem && list.activeFocus
                leftPadding: Theme.gap
                rightPadding: forget.width
                topPadding: Math.round((height - lines.implicitHeight) / 2)
                bottomPadding: 0
                Accessible.name: model.isThere ? model.name : qsTr("%1, missing").arg(model.name)
                onClicked: open()

                contentItem: Column {
                    id: lines
                    AppText {
                        width: parent.width
                        text: model.isThere ? model.name : qsTr("%1 — missing").arg(model.name)
                        color: model.isThere ? Theme.text : Theme.error
                        font.bold: true
                    }
                    AppText {
                        width: parent.width
                        text: model.folder
                        color: Theme.mutedText
                        font.pixelSize: Theme.smallTextSize
                        elide: Text.ElideMiddle
                    }
                }
                background: Rectangle {
                    color: row.highlighted || row.down ? Theme.pressed : Theme.surface
                }
                TouchButton {
                    id: forget
                    objectName: "forget"
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    focusPolicy: Qt.NoFocus
                    text: "×"
                    background: null
                    Accessible.name: qsTr("Forget %1").arg(model.name)
                    onClicked: popup.recent.remove(index)
                }
            }
        }
    }
}
