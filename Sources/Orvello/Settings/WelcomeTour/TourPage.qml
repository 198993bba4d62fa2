import QtQuick
import QtQuick.Layouts

// One page of the welcome tour: a column in the middle of it. A page that is left slides off to the
// side from which it is reached.
Item {
    id: root

    required property int number
    required property int current
    property real columnWidth: 540
    property real spacing: 16
    default property alias content: column.data

    readonly property bool isMirrored: Application.layoutDirection === Qt.RightToLeft
    readonly property bool isCurrent: number === current

    anchors.fill: parent
    visible: opacity > 0
    enabled: isCurrent
    opacity: isCurrent ? 1 : 0
    Accessible.role: Accessible.Pane
    Accessible.ignored: !isCurrent

    transform: Translate {
        x: Math.max(-1, Math.min(1, root.number - root.current)) * (root.isMirrored ? -48 : 48)

        Behavior on x {
            NumberAnimation {
                duration: 280
                easing.type: Easing.OutCubic
            }
        }
    }

    // One after the other, so that no two texts overlap.
    Behavior on opacity {
        SequentialAnimation {
            PauseAnimation {
                duration: root.isCurrent ? 110 : 0
            }
            NumberAnimation {
                duration: root.isCurrent ? 200 : 120
                easing.type: Easing.InOutQuad
            }
        }
    }

    ColumnLayout {
        id: column

        anchors.centerIn: parent
        width: root.columnWidth
        spacing: root.spacing
    }
}
