import QtQuick

// The small print of the card's edges.
Text {
    color: Qt.rgba(1, 1, 1, 0.55)
    font.pixelSize: 10
    font.weight: Font.Medium
    textFormat: Text.PlainText
    renderType: Text.NativeRendering
}
