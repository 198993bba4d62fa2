pragma ComponentBehavior: Bound
import QtQuick

// A label that changes among a few. They lie above each other, all but one of them clear: the item
// is as wide as the widest, and nothing moves when they change.
Item {
    id: root

    required property var labels // Strings; no type of QML names what C++ calls a list of them.
    required property string label

    implicitWidth: Math.ceil(childrenRect.width)
    implicitHeight: childrenRect.height

    Repeater {
        model: root.labels
        delegate: SmallLabel {
            required property string modelData

            text: modelData
            opacity: modelData === root.label ? 1 : 0
            Accessible.ignored: true // What it is a part of says it.
        }
    }
}
