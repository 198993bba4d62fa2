import QtQuick
import QtQuick.Controls
import Orvello

// A button without a border that a symbol stands on. Its help text is also its name.
ToolButton {
    id: root

    required property string symbol
    required property string help

    implicitWidth: 30
    implicitHeight: 26
    focusPolicy: Qt.TabFocus

    Accessible.name: help
    ToolTip.text: help
    ToolTip.visible: hovered || visualFocus
    ToolTip.delay: 700

    background: Rectangle {
        radius: 5
        color: Qt.alpha(root.palette.windowText, root.down ? 0.2 : root.hovered ? 0.1 : 0)
        border.width: root.visualFocus ? 2 : 0
        border.color: root.palette.highlight
    }

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            color: root.palette.windowText
        }
    }

    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()
}
