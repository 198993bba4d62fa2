import QtQuick
import Orvello

// A dark pill that keeps small things readable above moving text and over any wallpaper.
RoundedBox {
    id: root

    default property alias content: row.data

    readonly property int padding: 8
    readonly property int spacing: 6

    implicitWidth: row.implicitWidth + 2 * padding
    implicitHeight: CardStyle.capsuleHeight
    radius: height / 2
    color: CardStyle.capsule

    Row {
        id: row
        x: root.padding
        height: parent.height
        spacing: root.spacing
    }
}
