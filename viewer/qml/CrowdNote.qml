import QtQuick 2.15
import QtQuick.Layouts 1.15
import QtQuick.Window 2.15
import DataLogViewer 1.0
import "."

// Says how an axis with more curves than it has colours for looks, and a way out.
Rectangle {
    id: note

    property int count: 0
    property bool isRight: false
    property int leftOut: 0
    readonly property int colored: CurveColors.OfAnAxis
    // Two explanations would leave no room for variables there. What is left out is told always.
    readonly property bool isTerse: Window.height < 600 && leftOut === 0

    signal latestRequested()

    readonly property string text: {
        var curves = isRight ? qsTr("Right axis: %1 curves.").arg(count)
                             : qsTr("Left axis: %1 curves.").arg(count)
        if (leftOut > 0)
            return qsTr("%1 No more at once: %L2 were left out.").arg(curves).arg(leftOut)
        if (count > colored)
            return qsTr("%1 Only %2 have a colour, the rest is grey.").arg(curves).arg(colored)
        return qsTr("%1 Up to %2 have colours of their own.").arg(curves).arg(colored)
    }

    visible: count > CurveColors.OfThePlot
    implicitHeight: Math.max(label.visible ? label.implicitHeight : 0, Theme.target) + Theme.gap
    Accessible.role: Accessible.Note
    Accessible.name: text
    color: Theme.page

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: Theme.gap
        anchors.rightMargin: Theme.gap / 2
        spacing: Theme.gap

        AppText {
            id: label
            objectName: "text"
            Layout.fillWidth: true
            visible: !note.isTerse
            text: note.text
            font.pixelSize: Theme.smallTextSize
            wrapMode: Text.Wrap
            elide: Text.ElideNone
        }
        TouchButton {
            objectName: "latest"
            Layout.fillWidth: note.isTerse
            text: !note.isTerse ? qsTr("Latest five")
                                : note.isRight ? qsTr("Right: latest 5") : qsTr("Left: latest 5")
            font.pixelSize: note.isTerse ? Theme.smallTextSize : Theme.textSize
            Accessible.description: qsTr("Leaves the five curves that came last on the axis")
            onClicked: note.latestRequested()
        }
    }
}
