pragma Singleton
import QtQuick 2.15

// Sizes and colours of the viewer, in one place.
QtObject {
    readonly property int target: 44 // what a finger hits
    readonly property int gap: 8
    readonly property int margin: 12
    readonly property int radius: 6

    readonly property int textSize: 15
    readonly property int smallTextSize: 13
    readonly property int titleSize: 17
    readonly property string family: "Open Sans"

    readonly property color page: "#F3F5F7"
    readonly property color surface: "#FFFFFF"
    readonly property color pressed: "#E1EAF3"
    readonly property color border: "#C9D1DA"
    readonly property color text: "#1F2933"
    readonly property color mutedText: "#52606D"
    readonly property color accent: "#0B5CAD"
    readonly property color accentText: "#FFFFFF"
    readonly property color error: "#B42318"
    readonly property color errorPage: "#FEF3F2"
    // The first colours of the curves' palettes, to tell the axes apart.
    readonly property color leftAxis: "#D90C00"
    readonly property color rightAxis: "#0C6400"
}
