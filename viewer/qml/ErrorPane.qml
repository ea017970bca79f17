import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import "."

// Why there is nothing to see.
Rectangle {
    id: pane

    property string text
    property bool isCancelled: false
    property string before // the log that was shown before

    signal openRequested()
    signal retryRequested()
    signal backRequested()

    visible: Accessible.name !== "" // shown with its name: that is when screen readers tell it
    color: Theme.page
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Shortcut {
        sequence: "Escape"
        enabled: pane.visible && pane.before !== "" && !pane.Overlay.overlay.visible
        onActivated: pane.backRequested()
    }
    Rectangle {
        anchors.centerIn: parent
        width: Math.min(640, parent.width - 4 * Theme.margin)
        height: column.implicitHeight + 4 * Theme.margin
        radius: Theme.radius
        color: Theme.errorPage
        border.color: Theme.error

        ColumnLayout {
            id: column
            anchors.fill: parent
            anchors.margins: 2 * Theme.margin
            spacing: Theme.margin

            AppText {
                objectName: "errorTitle"
                text: pane.isCancelled ? qsTr("Reading was cancelled")
                                       : qsTr("This log could not be opened")
                font.pixelSize: Theme.titleSize
                font.bold: true
                color: Theme.error
            }
            Flickable {
                id: scroller
                objectName: "errorScroller"

                readonly property bool isLong: contentHeight > height
                // What is around it takes two rows of keys, a title and margins.
                readonly property real most: pane.height - 2 * Theme.target - 12 * Theme.margin

                Layout.fillWidth: true
                Layout.preferredHeight: Math.min(label.implicitHeight, Math.max(60, most))
                contentHeight: label.implicitHeight
                boundsBehavior: Flickable.StopAtBounds
                clip: true
                activeFocusOnTab: isLong
                Keys.onDownPressed: contentY = Math.min(contentY + 20, contentHeight - height)
                Keys.onUpPressed: contentY = Math.max(0, contentY - 20)
                ScrollBar.vertical: ScrollBar {
                    policy: scroller.isLong ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
                }

                AppText {
                    id: label
                    objectName: "errorText"
                    width: scroller.width - Theme.margin
                    text: pane.text
                    wrapMode: Text.WrapAtWordBoundaryOrAnywhere
                    elide: Text.ElideNone
                }
            }
            Flow {
                Layout.fillWidth: true
                spacing: Theme.gap

                TouchButton {
                    objectName: "openAnother"
                    text: qsTr("Open another log…")
                    primary: true
                    onClicked: pane.openRequested()
                }
                TouchButton {
                    objectName: "retry"
                    text: qsTr("Try again")
                    onClicked: pane.retryRequested()
                }
                TouchButton {
                    objectName: "back"
                    visible: pane.before !== ""
                    text: qsTr("Back to the log before")
                    Accessible.description: pane.before
                    ToolTip.visible: hovered && !pressed
                    ToolTip.delay: 700
                    ToolTip.text: qsTr("%1 (Esc)").arg(pane.before)
                    onClicked: pane.backRequested()
                }
            }
        }
    }
}
