pragma Singleton
import QtQuick

// The colours of the welcome tour, which is dark on every desktop.
QtObject {
    readonly property color background: Qt.rgba(0.07, 0.07, 0.09, 1)
    readonly property color glow: "#2b2d78"
    readonly property color accent: "#7f85ff"
    readonly property color button: "#565cdb"
    readonly property color symbol: "#b4b8ff"
    readonly property color done: "#5ee08a"
    readonly property color highlight: "#ffd152" // The line being read, on the application's icon.
    readonly property color text: "#f5f5f7"
    readonly property color secondaryText: Qt.rgba(0.96, 0.96, 0.97, 0.72)
    readonly property color card: Qt.rgba(1, 1, 1, 0.06)
    readonly property color cardBorder: Qt.rgba(1, 1, 1, 0.09)
}
