import QtQuick 2.15
import QtQuick.Layouts 1.15
import "."

// Something to be told beside the work, until it is dismissed. Good news goes by itself.
Rectangle {
    id: bar

    property string text
    property string textName: "noticeText"
    property string dismissName: "dismissNotice"
    property bool isGood: true
    property bool isLasting: false // tells a state, which goes by itself

    signal dismissed()

    visible: text !== ""
    implicitHeight: visible ? Math.max(row.implicitHeight, Theme.target) + 2 * Theme.gap : 0
    color: isGood ? Theme.surface : Theme.errorPage
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    Rectangle {
        width: parent.width
        height: 1
        color: bar.isGood ? Theme.border : Theme.error
    }
    RowLayout {
        id: row
        anchors.fill: parent
        anchors.leftMargin: Theme.margin
        anchors.rightMargin: Theme.margin
        spacing: Theme.margin

        AppText {
            objectName: bar.textName
            Layout.fillWidth: true
            text: bar.text
            font.pixelSize: Theme.smallTextSize
            wrapMode: Text.WrapAtWordBoundaryOrAnywhere
            maximumLineCount: 6
        }
        TouchButton {
            objectName: bar.dismissName
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
