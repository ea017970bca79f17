import QtQuick 2.15
import QtQuick.Controls 2.15
import "."

// Something to be told beside the work, until it is dismissed. Good news goes by itself.
Rectangle {
    id: bar

    property string text
    property string textName: "noticeText"
    property string dismissName: "dismissNotice"
    property bool isGood: true
    readonly property int mostHeight: 110 // some six lines, the rest is scrolled to
    property bool isLasting: false // tells a state, which goes by itself

    signal dismissed()

    visible: Accessible.name !== "" // shown with its name: that is when screen readers tell it
    implicitHeight: text !== "" ? Math.max(scroller.implicitHeight, Theme.target) + 2 * Theme.gap : 0
    color: isGood ? Theme.surface : Theme.errorPage
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Rectangle {
        width: parent.width
        height: 1
        color: bar.isGood ? Theme.border : Theme.error
    }
    // No layout: it would find the text's width only once the bar is shown, and its height with that.
    Item {
        anchors.fill: parent
        anchors.leftMargin: Theme.margin
        anchors.rightMargin: Theme.margin

        Flickable {
            id: scroller
            objectName: "noticeScroller"

            readonly property bool isLong: contentHeight > height

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.rightMargin: bar.isLasting ? 0 : dismissKey.width + Theme.margin
            anchors.verticalCenter: parent.verticalCenter
            height: implicitHeight
            implicitHeight: Math.min(label.implicitHeight, bar.mostHeight)
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
                objectName: bar.textName
                width: scroller.width - Theme.margin
                text: bar.text
                font.pixelSize: Theme.smallTextSize
                wrapMode: Text.WrapAtWordBoundaryOrAnywhere
                elide: Text.ElideNone
            }
            Rectangle {
                parent: scroller
                anchors.fill: parent
                color: "transparent"
                border.color: Theme.text
                border.width: 2
                visible: scroller.activeFocus
            }
        }
        TouchButton {
            id: dismissKey
            objectName: bar.dismissName
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            visible: !bar.isLasting
            text: qsTr("Dismiss")
            onClicked: bar.dismissed()
        }
    }
    Timer {
        interval: 6000
        running: bar.visible && bar.isGood
        onTriggered: bar.dismissed()
    }
}
