pragma ComponentBehavior: Bound
import QtQuick
import Orvello

// Which microphone is heard, or why nothing is, for whoever points at the status.
RoundedBox {
    id: root

    required property VoiceActivityEngine voice
    required property real maximumWidth

    readonly property int padding: 6

    implicitWidth: lines.width + 2 * padding
    implicitHeight: lines.height + 2 * padding
    radius: CardStyle.capsuleHeight / 2
    color: CardStyle.capsule

    Column {
        id: lines
        x: root.padding
        y: root.padding

        Repeater {
            model: root.voice.status.split("\n")
            delegate: SmallLabel {
                required property string modelData

                Accessible.ignored: true // The status says it.
                width: Math.min(implicitWidth, root.maximumWidth - 2 * root.padding)
                text: modelData
                color: CardStyle.strongLabel
                wrapMode: Text.Wrap
            }
        }
    }
}
