import QtQuick
import Orvello

// The small print of the card's edges.
Text {
    color: CardStyle.label
    font.pixelSize: CardStyle.labelSize
    font.weight: Font.Medium
    textFormat: Text.PlainText
    renderType: Text.NativeRendering
}
