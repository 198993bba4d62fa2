pragma ComponentBehavior: Bound
import QtQuick

// One dot for each page, the current one elongated.
Row {
    id: root

    required property int count
    required property int current

    readonly property int changing: 200 // Milliseconds.

    spacing: 8
    Accessible.role: Accessible.StaticText
    //: Read aloud. %1: a page of the tour; %2: how many there are.
    Accessible.name: qsTr("Page %1 of %2").arg(current + 1).arg(count)

    Repeater {
        model: root.count
        delegate: Rectangle {
            required property int index

            readonly property bool isCurrent: index === root.current

            width: isCurrent ? 18 : 6
            height: 6
            radius: 3
            color: isCurrent ? TourStyle.accent : "white"
            opacity: isCurrent ? 1 : 0.2

            Behavior on width {
                NumberAnimation {
                    duration: root.changing
                    easing.type: Easing.InOutQuad
                }
            }
            Behavior on color {
                ColorAnimation {
                    duration: root.changing
                    easing.type: Easing.InOutQuad
                }
            }
            Behavior on opacity {
                NumberAnimation {
                    duration: root.changing
                    easing.type: Easing.InOutQuad
                }
            }
        }
    }
}
