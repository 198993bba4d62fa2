import QtQuick
import QtQuick.Templates as T

// The switch that current desktops use, in the palette's colours.
T.Switch {
    id: root

    readonly property bool isDark: palette.window.hslLightness < 0.5

    implicitWidth: 40
    implicitHeight: 24
    opacity: enabled ? 1 : 0.5

    indicator: Rectangle {
        width: root.width
        height: root.height
        radius: height / 2
        // When off, it contrasts 3:1 with what is behind it, and so does the knob with it.
        color: root.checked ? root.palette.highlight : root.isDark ? Qt.alpha("white", 0.4) : Qt.alpha("black", 0.45)

        Behavior on color {
            ColorAnimation {
                duration: 120
            }
        }

        Rectangle {
            x: 2 + root.visualPosition * (root.width - width - 4)
            y: 2
            width: height
            height: root.height - 4
            radius: height / 2
            color: "white"
            scale: root.down ? 0.92 : 1

            Behavior on x {
                enabled: !root.pressed
                NumberAnimation {
                    duration: 120
                    easing.type: Easing.OutCubic
                }
            }
        }

        Rectangle {
            visible: root.visualFocus
            anchors.fill: parent
            anchors.margins: -3
            radius: height / 2
            color: "transparent"
            border.width: 2
            border.color: Qt.alpha(root.palette.highlight, 0.7)
        }
    }
}
