import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import "."

// What of the log was not taken as it stands, line by line, with a way to each row.
Popup {
    id: popup

    property QtObject troubles

    // Counted from 0.
    signal rowRequested(int dataSet, int row)

    function show(index) {
        var entry = troubles.entries[index]
        if (!entry || entry.row < 0)
            return
        close()
        rowRequested(entry.dataSet, entry.row)
    }

    parent: Overlay.overlay
    anchors.centerIn: parent
    width: Math.min(640, parent.width - 2 * Theme.margin)
    height: Math.min(520, parent.height - 2 * Theme.margin)
    padding: Theme.margin
    modal: true
    focus: true
    onOpened: list.forceActiveFocus()
    background: PopupFrame {}

    contentItem: ColumnLayout {
        spacing: Theme.gap

        RowLayout {
            Layout.fillWidth: true

            AppText {
                Layout.fillWidth: true
                text: qsTr("Not taken as it stands")
                font.pixelSize: Theme.titleSize
                font.bold: true
            }
            TouchButton {
                objectName: "closeTroubles"
                text: qsTr("Close")
                onClicked: popup.close()
            }
        }
        AppText {
            Layout.fillWidth: true
            text: popup.troubles.converted
                  ? qsTr("The rest of the log was read. Lines are counted in the text that the spreadsheet "
                         + "was converted to, from 1; as a rule they are the rows of the sheet. A tap "
                         + "shows the row in the table.")
                  : qsTr("The rest of the log was read. Lines are counted in the file, from 1. A tap shows "
                         + "the row in the table.")
            color: Theme.mutedText
            font.pixelSize: Theme.smallTextSize
            wrapMode: Text.Wrap
        }
        ListView {
            id: list
            objectName: "troubleList"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            activeFocusOnTab: true
            Accessible.role: Accessible.List
            Accessible.name: qsTr("Not taken as it stands")
            ScrollBar.vertical: ScrollBar {}
            model: popup.troubles.entries
            keyNavigationEnabled: true
            highlightMoveDuration: 0
            onCountChanged: currentIndex = 0
            Keys.onReturnPressed: popup.show(currentIndex)
            Keys.onEnterPressed: popup.show(currentIndex)
            delegate: Column {
                id: entry
                objectName: "trouble" + index
                width: list.width
                readonly property bool isCurrent: ListView.isCurrentItem && list.activeFocus

                SectionTitle {
                    objectName: "section"
                    width: parent.width
                    topPadding: index > 0 ? Theme.margin : 0
                    bottomPadding: 4
                    visible: modelData.isFirst
                    text: modelData.section
                }
                AbstractButton {
                    id: line
                    objectName: "line"
                    width: parent.width
                    implicitHeight: Math.max(Theme.target, implicitContentHeight)
                    leftPadding: Theme.gap
                    rightPadding: Theme.gap
                    focusPolicy: Qt.NoFocus // keys go to the list
                    enabled: modelData.row >= 0
                    text: modelData.text
                    Accessible.name: text
                    Accessible.description: qsTr("Shows the row in the table")
                    onClicked: popup.show(index)
                    contentItem: AppText {
                        objectName: "text"
                        text: line.text
                        wrapMode: Text.WrapAtWordBoundaryOrAnywhere
                        elide: Text.ElideNone
                    }
                    background: Rectangle {
                        radius: Theme.radius
                        color: line.down || entry.isCurrent ? Theme.pressed : "transparent"
                    }
                }
            }
        }
    }
}
