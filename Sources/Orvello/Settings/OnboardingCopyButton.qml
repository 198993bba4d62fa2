import QtQuick
import QtQuick.Templates as T
import Orvello

// Copies, and says for a moment that it has.
T.Button {
    id: root

    property bool hasCopied: false

    implicitWidth: 28
    implicitHeight: 28
    hoverEnabled: true
    Accessible.name: hasCopied ? qsTr("Copied") : qsTr("Copy the path")
    onClicked: {
        hasCopied = true;
        fading.restart();
    }

    Timer {
        id: fading

        interval: 1600
        onTriggered: root.hasCopied = false
    }

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            width: 15
            height: 15
            name: root.hasCopied ? "checkmark" : "doc.on.doc"
            color: root.hasCopied ? "#5ee08a" : root.hovered ? OnboardingStyle.text : OnboardingStyle.secondaryText
        }
    }

    background: Rectangle {
        radius: 8
        color: Qt.rgba(1, 1, 1, root.down ? 0.16 : root.hovered ? 0.1 : 0)
        border.width: root.visualFocus ? 2 : 0
        border.color: OnboardingStyle.accent
    }
}
