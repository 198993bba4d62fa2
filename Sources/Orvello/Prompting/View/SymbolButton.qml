import QtQuick
import Orvello

// A symbol to press. While it is inert it still takes the press, so that a click beside the mark
// never drags the panel away.
Item {
    id: root

    required property string symbol
    required property string description // For those who cannot see it.
    property bool isInert: false

    signal pressed()

    implicitWidth: 18
    implicitHeight: 18

    function press() {
        if (!isInert)
            pressed();
    }

    MouseArea {
        anchors.fill: parent
        onClicked: root.press()
    }

    // A disabled item takes no press, so this is not the whole button.
    AccessibleButton {
        anchors.fill: parent
        enabled: !root.isInert
        name: root.description
        onPressed: root.press()

        Accessible.role: Accessible.Button

        Symbol {
            anchors.centerIn: parent
            width: 10
            height: 10
            name: root.symbol
            color: Qt.rgba(1, 1, 1, root.isInert ? 0.25 : 0.8)
        }
    }
}
