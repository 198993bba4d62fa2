import QtQuick
import Orvello

// Warns of switching Stealth Mode while others see the screen.
RoundedBox {
    id: root

    required property ShareWarning warning

    Accessible.role: Accessible.AlertMessage
    Accessible.name: message.text

    radius: CardStyle.capsuleHeight / 2
    implicitHeight: Math.max(CardStyle.capsuleHeight, message.implicitHeight + 6)
    color: CardStyle.capsule

    Symbol {
        id: eye
        anchors.left: parent.left
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        width: 13
        height: 13
        name: "eye.trianglebadge.exclamationmark"
        color: CardStyle.yellow
    }

    SmallLabel {
        id: message
        Accessible.ignored: true
        anchors.left: eye.right
        anchors.leftMargin: 6
        anchors.right: dismissal.left
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Toggling Stealth Mode during a screen share can gray out this prompter — close and open Orvello again to clear it.")
        color: CardStyle.notice
        wrapMode: Text.Wrap
    }

    CardButton {
        id: dismissal
        anchors.right: parent.right
        anchors.rightMargin: 2
        anchors.verticalCenter: parent.verticalCenter
        symbol: "xmark"
        description: qsTr("Dismiss")
        onActivated: root.warning.dismiss()
    }
}
