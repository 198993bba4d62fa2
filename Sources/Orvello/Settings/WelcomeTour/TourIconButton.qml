import QtQuick
import QtQuick.Templates as T
import Orvello

// A button of the welcome tour that is a symbol alone.
T.Button {
    id: root

    required property string symbol
    required property real symbolSize
    property color symbolColor: hovered ? TourStyle.text : TourStyle.secondaryText
    property real restingOpacity: 0 // Of what the symbol lies on.
    property real radius: 8

    implicitWidth: 28
    implicitHeight: 28
    hoverEnabled: true

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            width: root.symbolSize
            height: root.symbolSize
            name: root.symbol
            color: root.symbolColor
        }
    }

    background: Rectangle {
        radius: root.radius
        color: Qt.rgba(1, 1, 1, root.restingOpacity + (root.down ? 0.15 : root.hovered ? 0.09 : 0))
        border.width: root.visualFocus ? 2 : 0
        border.color: TourStyle.accent
    }
}
