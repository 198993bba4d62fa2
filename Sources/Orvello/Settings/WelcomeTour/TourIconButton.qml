import QtQuick
import Orvello

// A button of the welcome tour that is a symbol alone.
SymbolButton {
    implicitWidth: 28
    implicitHeight: 28
    symbolColor: hovered ? TourStyle.text : TourStyle.secondaryText
    shade: "white"
    focusColor: TourStyle.accent
    radius: 8
}
