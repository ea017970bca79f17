import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import QtQuick.Window 2.15
import "."

// The logs that were opened lately, to be opened again or forgotten.
Popup {
    id: popup

    property QtObject recent

    signal chosen(string path)

    width: Math.min(460, parent.Window.width - 2 * Theme.gap)
    height: Math.min(implicitHeight, parent.Window.height - parent.height - 3 * Theme.gap)
    margins: Theme.gap
    padding: Theme.gap
    focus: true
    onAboutToShow: recent.refresh()
    onOpened: {
        list.currentIndex = 0
        list.forceActiveFocus()
    }
    background: PopupFrame {}

    contentItem: ColumnLayout {
        spacing: 0

        RowLayout {
            Layout.fillWidth: true
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
        AppText {
            Layout.fillWidth: true
            Layout.margins: Theme.margin
            visible: list.count === 0
            text: qsTr("None yet.")
            color: Theme.mutedText
        }
        ListView {
            id: list
            objectName: "recentList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            implicitHeight: count * 52
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
            delegate: ItemDelegate {
                id: row

                function open() {
                    var path = model.path
                    popup.close()
                    Qt.callLater(function() { popup.chosen(path) })
                }

                objectName: "recent" + index
                width: list.width
                height: 52
                highlighted: ListView.isCurrentItem && list.activeFocus
                leftPadding: Theme.gap
                rightPadding: forget.width
                Accessible.name: model.isThere ? model.name : qsTr("%1, missing").arg(model.name)
                onClicked: open()

                contentItem: Column {
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
