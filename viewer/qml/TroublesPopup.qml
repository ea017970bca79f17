import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import "."

// What of the log was not taken as it stands, line by line.
Popup {
    id: popup

    property QtObject troubles

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
            text: qsTr("The rest of the log was read. Lines are counted in the file, from 1.")
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
            ScrollBar.vertical: ScrollBar {}
            model: popup.troubles.entries
            Keys.onUpPressed: flick(0, 600)
            Keys.onDownPressed: flick(0, -600)
            delegate: Column {
                objectName: "trouble" + index
                width: list.width

                SectionTitle {
                    objectName: "section"
                    width: parent.width
                    topPadding: index > 0 ? Theme.margin : 0
                    bottomPadding: 4
                    visible: modelData.isFirst
                    text: modelData.section
                }
                AppText {
                    objectName: "text"
                    width: parent.width
                    leftPadding: Theme.gap
                    topPadding: 3
                    bottomPadding: 3
                    text: modelData.text
                    wrapMode: Text.WrapAtWordBoundaryOrAnywhere
                    elide: Text.ElideNone
                }
            }
        }
    }
}
