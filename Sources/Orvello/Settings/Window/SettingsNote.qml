import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// A text that explains the row above it.
Label {
    property bool isWarning: false

    readonly property FontMetrics standard: FontMetrics {}
    readonly property bool isDark: palette.window.hslLightness < 0.5

    Layout.fillWidth: true
    Layout.bottomMargin: 11
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    lineHeight: 1.12
    font.pointSize: Math.max(7.5, 0.92 * standard.font.pointSize)
    font.weight: isWarning ? Font.Medium : Font.Normal
    color: isWarning ? (isDark ? "#ffb84d" : "#8a4b00") : Qt.alpha(palette.windowText, 0.75)
}
