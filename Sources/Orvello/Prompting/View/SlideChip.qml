pragma ComponentBehavior: Bound
import QtQuick
import Orvello

// Which slide's notes are shown and who turns the slides, with buttons to turn them by hand. The
// buttons are at the chip's end and everything before them is as wide as it can get, so that they
// stay under the pointer while the user steps through the deck.
Capsule {
    id: root

    required property SlideStatus status
    required property double maximumWidth

    Accessible.role: Accessible.Grouping
    //: Read aloud. %1: which slide of how many, as in "2 / 14".
    Accessible.name: status.isOtherDeck ? status.stateLabel : qsTr("Slide %1").arg(status.position)
    //: Read aloud. %2: the slide's title, which goes in last, as it may hold a "%1"; %1: who turns the slides, as in "Live".
    Accessible.description: status.title ? qsTr("%2, %1").arg(status.stateLabel).arg(status.title) : status.stateLabel

    readonly property bool isMirrored: Application.layoutDirection === Qt.RightToLeft
    readonly property double widthWithoutTitle:
        dot.width + state.width + buttons.width + 3 * spacing + 2 * padding

    SmallLabel {
        id: titleLabel

        anchors.verticalCenter: parent.verticalCenter
        visible: width > 0
        width: Math.max(0, Math.min(Math.ceil(implicitWidth), 140,
                                    root.maximumWidth - root.widthWithoutTitle))
        text: root.status.title
        elide: Text.ElideRight
        maximumLineCount: 1
    }

    RoundedBox {
        id: dot
        anchors.verticalCenter: parent.verticalCenter
        width: 6
        height: 6
        radius: 3
        color: root.status.stateColor
    }

    LabelStack {
        id: state
        anchors.verticalCenter: parent.verticalCenter
        labels: root.status.stateLabels
        label: root.status.stateLabel
    }

    Row {
        id: buttons
        visible: !root.status.isOtherDeck
        height: parent.height

        CardButton {
            symbol: root.isMirrored ? "chevron.right" : "chevron.left"
            description: qsTr("Previous slide")
            isDisabled: !root.status.hasPrevious
            onActivated: root.status.previous()
        }

        SmallLabel {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.ceil(widestPosition.width)
            text: root.status.position
            color: CardStyle.strongLabel
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignHCenter

            TextMetrics {
                id: widestPosition
                text: root.status.widestPosition
                font.pixelSize: CardStyle.labelSize
                font.weight: Font.DemiBold
            }
        }

        CardButton {
            symbol: root.isMirrored ? "chevron.left" : "chevron.right"
            description: qsTr("Next slide")
            isDisabled: !root.status.hasNext
            onActivated: root.status.next()
        }
    }
}
