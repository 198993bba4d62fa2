import QtQuick
import QtQuick.Controls
import Orvello

// A button below the list of scripts. Its help text is also its name.
SymbolButton {
    id: root

    required property string help

    Accessible.name: help
    ToolTip.text: help
    ToolTip.visible: hovered || visualFocus
    ToolTip.delay: 700

    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()
}
