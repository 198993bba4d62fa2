import QtQuick
import Orvello

// Warns of what Stealth Mode does while others see the screen, or says that it does nothing here.
RoundedBox {
    id: root

    required property ShareWarning warning
    required property bool isVisibleInRecordings

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
        text: root.isVisibleInRecordings
              ? qsTr("Stealth Mode has no effect on this desktop — whoever sees your screen sees this prompter, too.")
              : qsTr("Toggling Stealth Mode during a screen share can gray out this prompter — close and open Orvello again to clear it.")
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
