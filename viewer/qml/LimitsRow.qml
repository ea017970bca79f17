import QtQuick 2.15
import QtQuick.Layouts 1.15
import DataLogViewer 1.0
import "."

// The limits of one axis: following the data, or typed.
ColumnLayout {
    id: row

    property PlotNavigator navigator
    property int axis
    property alias title: title.text
    readonly property bool isClock: axis === PlotNavigator.Bottom && navigator.isClockTime
    property string before // what was shown when the row was filled

    readonly property string now: automatic.checked ? "" : lower.text + "\n" + upper.text

    function fill() {
        automatic.checked = navigator.isAutoscaled(axis)
        lower.text = navigator.limitText(axis, false)
        upper.text = navigator.limitText(axis, true)
        problem.text = ""
        before = now
    }
    // True when the axis has the limits that stand here.
    function apply() {
        if (now === before || !visible)
            return true
        if (automatic.checked)
            navigator.autoscale(axis)
        else
            problem.text = navigator.setLimits(axis, lower.text, upper.text)
        return automatic.checked || problem.text === ""
    }

    spacing: 4
    Layout.fillWidth: true

    signal accepted()

    RowLayout {
        spacing: Theme.gap

        AppText {
            id: title
            Layout.preferredWidth: 52
            font.bold: true
        }
        TouchField {
            id: lower
            objectName: "lower"
            Layout.fillWidth: true
            Layout.preferredWidth: 100
            placeholderText: row.isClock ? qsTr("hh:mm:ss") : qsTr("Lower limit")
            Accessible.name: qsTr("%1, lower limit").arg(row.title)
            onTextEdited: automatic.checked = false
            onAccepted: row.accepted()
        }
        AppText { text: "–" }
        TouchField {
            id: upper
            objectName: "upper"
            Layout.fillWidth: true
            Layout.preferredWidth: 100
            placeholderText: row.isClock ? qsTr("hh:mm:ss") : qsTr("Upper limit")
            Accessible.name: qsTr("%1, upper limit").arg(row.title)
            onTextEdited: automatic.checked = false
            onAccepted: row.accepted()
        }
        TouchSwitch {
            id: automatic
            objectName: "automatic"
            text: qsTr("Auto")
            Accessible.name: qsTr("%1 follows the data").arg(row.title)
            onToggled: problem.text = ""
        }
    }
    AppText {
        id: problem
        objectName: "problem"
        Layout.fillWidth: true
        visible: text !== ""
        color: Theme.error
        font.pixelSize: Theme.smallTextSize
        wrapMode: Text.Wrap
        elide: Text.ElideNone
    }
}
