import QtQuick
import QtQuick.Templates as T
import Orvello

// A button that is a symbol alone, on a shade that responds to the pointer.
T.Button {
    id: root

    required property string symbol
    property real symbolSize: 16
    property color symbolColor: palette.windowText
    property color shade: palette.windowText
    property real restingShade: 0 // How strong the shade is while nothing happens.
    property color focusColor: palette.highlight
    property real radius: 5

    implicitWidth: 30
    implicitHeight: 26
    hoverEnabled: true
    focusPolicy: Qt.TabFocus

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
        color: Qt.alpha(root.shade, root.restingShade + (root.down ? 0.2 : root.hovered ? 0.1 : 0))
        border.width: root.visualFocus ? 2 : 0
        border.color: root.focusColor
    }
}
