import QtQuick
import Orvello

// Says that the slideshow shows another deck than the script's, and offers its notes.
RoundedBox {
    id: root

    required property OtherDeckNotice notice

    Accessible.role: Accessible.AlertMessage
    Accessible.name: message.text

    radius: CardStyle.capsuleHeight / 2
    implicitHeight: content.height + 12
    color: CardStyle.capsule
    visible: notice.isShown

    Flow {
        id: content

        x: 8
        y: 6
        width: parent.width - 2 * x
        spacing: 6

        SmallLabel {
            id: message

            width: Math.min(Math.ceil(implicitWidth), content.width)
            height: Math.max(CardStyle.capsuleHeight, implicitHeight)
            Accessible.ignored: true
            text: root.notice.text
            color: CardStyle.notice
            wrapMode: Text.Wrap
            elide: Text.ElideRight
            maximumLineCount: 3
            verticalAlignment: Text.AlignVCenter
        }

        CardTextButton {
            visible: text !== ""
            width: Math.min(implicitWidth, content.width)
            text: root.notice.action
            onActivated: root.notice.act()
        }

        CardTextButton {
            width: Math.min(implicitWidth, content.width)
            text: qsTr("Keep these notes")
            onActivated: root.notice.keepNotes()
        }
    }
}
