pragma Singleton
import QtQuick 2.15
import DataLogViewer 1.0

// Sizes and colours of the viewer, in one place.
QtObject {
    readonly property int target: 44 // what a finger hits
    readonly property int compactRow: 28 // of a table, for a mouse
    readonly property int gap: 8
    readonly property int margin: 12
    readonly property int radius: 6

    readonly property int textSize: 15
    readonly property int smallTextSize: 13
    readonly property int titleSize: 17
    readonly property string family: "Open Sans"

    // As chosen, or as the desktop is.
    readonly property bool isDark: Preferences.theme === "dark"
                                   || (Preferences.theme === "auto" && desktopIsDark)
    readonly property bool desktopIsDark: system.window.hslLightness < 0.5
    readonly property SystemPalette system: SystemPalette {}

    readonly property var colors: ThemeColors.all(isDark)
    readonly property color page: colors.page
    readonly property color surface: colors.surface
    readonly property color plot: colors.plot
    readonly property color pressed: colors.pressed
    readonly property color border: colors.border
    readonly property color text: colors.text
    readonly property color mutedText: colors.mutedText
    readonly property color accent: colors.accent
    readonly property color accentText: colors.accentText
    readonly property color off: colors.off
    readonly property color error: colors.error
    readonly property color errorPage: colors.errorPage
    readonly property color leftAxis: colors.leftAxis
    readonly property color rightAxis: colors.rightAxis

    // A curve's colour as the plot draws it.
    function curve(color) { return ThemeColors.curve(color, isDark, Preferences.instrumentColors) }
}
