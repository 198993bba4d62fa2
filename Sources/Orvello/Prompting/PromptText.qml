pragma ComponentBehavior: Bound
import QtQuick
import Orvello

// The lines that are visible, dissolving toward the top and the bottom edge. Only the two strips
// where they dissolve are drawn by way of a texture; between them the lines are drawn directly.
Item {
    id: root

    required property PromptLines lines
    required property color color

    readonly property double fadeInEnd: 0.1 * height
    readonly property double fadeOutStart: 0.82 * height

    Item {
        y: Math.ceil(root.fadeInEnd)
        width: root.width
        height: Math.floor(root.fadeOutStart) - y
        clip: true

        Item {
            id: text

            y: -parent.y
            width: root.width
            height: root.height

            Item {
                id: frame

                anchors.horizontalCenter: parent.horizontalCenter
                width: root.lines.lineWidth
                y: root.lines.originY

                Repeater {
                    model: root.lines
                    delegate: Text {
                        required property string lineText
                        required property double baselineY
                        required property bool isRightToLeft

                        width: frame.width
                        y: baselineY - baselineOffset
                        text: lineText
                        textFormat: Text.PlainText
                        renderType: Text.QtRendering // The only one that stands between pixels.
                        horizontalAlignment: isRightToLeft ? Text.AlignRight : Text.AlignLeft
                        font: root.lines.lineFont
                        color: root.color
                    }
                }
            }
        }
    }

    FadingStrip {
        source: text
        height: Math.ceil(root.fadeInEnd)
        clearAt: 0
        opaqueAt: root.fadeInEnd
    }

    FadingStrip {
        source: text
        y: Math.floor(root.fadeOutStart)
        height: root.height - y
        clearAt: root.height
        opaqueAt: root.fadeOutStart
    }
}
