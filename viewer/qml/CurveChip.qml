import QtQuick 2.15
import QtQuick.Controls 2.15
import QtQuick.Layouts 1.15
import "."

// A curve's entry in the legend, with its reading at the cursor. A tap hides and shows the curve.
AbstractButton {
    id: chip

    property string name
    property string unit
    property string reading
    property alias color: mark.color
    property alias isRight: mark.isRight
    property bool isShown: true
    property string told: reading === "" ? "" : reading + " " + unit // to screen readers

    implicitHeight: Theme.target
    leftPadding: Theme.gap
    rightPadding: Theme.gap
    hoverEnabled: true
    checkable: true // which is what makes it a check box for screen readers
    checked: isShown
    onCheckedChanged: {
        if (checked !== isShown) // what a click does is decided by others
            checked = Qt.binding(function () { return chip.isShown })
    }
    Accessible.onToggleAction: clicked()
    Accessible.name: isShown ? qsTr("%1, shown").arg(name) : qsTr("%1, hidden").arg(name)
    Accessible.description: isShown ? told : ""
    ToolTip.visible: hovered && !pressed
    ToolTip.delay: 700
    ToolTip.text: isShown ? qsTr("Hide %1").arg(name) : qsTr("Show %1").arg(name)

    background: Rectangle {
        color: chip.down ? Theme.pressed : "transparent"
        radius: Theme.radius
        border.width: chip.visualFocus ? 2 : 0
        border.color: Theme.text
    }
    contentItem: RowLayout {
        spacing: Theme.gap

        CurveMark {
            id: mark
            isShown: chip.isShown
        }
        AppText {
            text: chip.name
            font.strikeout: !chip.isShown
            color: chip.isShown ? Theme.text : Theme.mutedText
            Layout.fillWidth: true
            Layout.minimumWidth: 30
        }
        AppText {
            objectName: "chipReading"
            visible: text !== ""
            text: chip.isShown ? chip.reading : ""
            font.bold: true
        }
        AppText {
            visible: text !== "" && chip.isShown
            text: chip.unit
            color: Theme.mutedText
            font.pixelSize: Theme.smallTextSize
            Layout.maximumWidth: 70
        }
    }
}
