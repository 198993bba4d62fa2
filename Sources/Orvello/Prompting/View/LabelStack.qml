pragma ComponentBehavior: Bound
import QtQuick

// One of a few labels. They lie on top of each other, all but one transparent: the item is as wide
// as the widest, and nothing moves when the label changes.
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
