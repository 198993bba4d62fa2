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

    // The space bar too, which the button would handle itself, at each repetition.
    function isPressing(key: int): bool {
        return key === Qt.Key_Return || key === Qt.Key_Enter || key === Qt.Key_Space;
    }

    onActiveFocusChanged: singlePress.reset()
    Keys.onReleased: event => {
        event.accepted = isPressing(event.key);
        singlePress.keyReleased();
    }
    Keys.onPressed: event => {
        event.accepted = isPressing(event.key);
        if (event.accepted && singlePress.admits(event))
            root.clicked();
    }

    SinglePress {
        id: singlePress
    }
}
