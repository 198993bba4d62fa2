import QtQuick
import Orvello

// Warns of switching Stealth Mode while others see the screen.
Rectangle {
    id: root

    required property ShareWarning warning

    Accessible.role: Accessible.AlertMessage
    Accessible.name: message.text

    radius: 9
    implicitHeight: Math.max(18, message.implicitHeight + 6)
    color: Qt.rgba(0, 0, 0, 0.88)
    visible: warning.isShown

    Symbol {
        id: eye
        anchors.left: parent.left
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        width: 13
        height: 13
        name: "eye.trianglebadge.exclamationmark"
        color: root.warning.color
    }

    SmallLabel {
        id: message
        Accessible.ignored: true
        anchors.left: eye.right
        anchors.leftMargin: 6
        anchors.right: dismissal.left
        anchors.verticalCenter: parent.verticalCenter
        text: qsTr("Toggling Stealth Mode during a screen share can gray out this prompter — close and open Orvello again to clear it.")
        color: Qt.rgba(1, 1, 1, 0.7)
        wrapMode: Text.Wrap
    }

    SymbolButton {
        id: dismissal
        anchors.right: parent.right
        anchors.rightMargin: 2
        anchors.verticalCenter: parent.verticalCenter
        symbol: "xmark"
        description: qsTr("Dismiss")
        onPressed: root.warning.dismiss()
    }
}
