import QtQuick
import QtQuick.Templates as T
import Orvello

T.Button {
    id: root

    implicitWidth: 28
    implicitHeight: 28
    hoverEnabled: true
    focusPolicy: Qt.TabFocus
    Accessible.name: qsTr("Close")

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            width: 12
            height: 12
            name: "xmark"
            color: root.hovered ? OnboardingStyle.text : OnboardingStyle.secondaryText
        }
    }

    background: Rectangle {
        radius: height / 2
        color: Qt.rgba(1, 1, 1, root.down ? 0.22 : root.hovered ? 0.16 : 0.08)
        border.width: root.visualFocus ? 2 : 0
        border.color: OnboardingStyle.accent
    }
}
