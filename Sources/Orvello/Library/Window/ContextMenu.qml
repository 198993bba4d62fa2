import QtQuick
import QtQuick.Controls

// A menu in the window's colours, as wide as its longest line.
Menu {
    id: root

    // The style's menus are as wide as their background, whatever is written in them.
    width: {
        let widest = implicitWidth
        for (let i = 0; i < count; ++i)
            widest = Math.max(widest, itemAt(i).implicitWidth + leftPadding + rightPadding)
        return widest
    }
    // On a dark editor the style's own edge is invisible.
    background: Rectangle {
        implicitWidth: 200
        color: root.palette.base
        border.color: Qt.alpha(root.palette.windowText, 0.3)
    }
}
