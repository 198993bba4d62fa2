pragma ComponentBehavior: Bound
import QtQuick
import Orvello

// What the prompter is doing. The labels lie above each other, all but one of them clear: the badge
// is as wide as the widest, and nothing moves when they change.
Capsule {
    id: root

    required property PrompterStatus status

    Rectangle {
        anchors.verticalCenter: parent.verticalCenter
        width: 8
        height: 8
        radius: 4
        color: root.status.color
    }

    Item {
        anchors.verticalCenter: parent.verticalCenter
        width: Math.ceil(childrenRect.width)
        height: childrenRect.height

        Repeater {
            model: root.status.labels
            delegate: SmallLabel {
                required property string modelData

                text: modelData
                opacity: modelData === root.status.label ? 1 : 0
            }
        }
    }
}
