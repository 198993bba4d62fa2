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

    Accessible.role: Accessible.Button
    Accessible.name: description
    Accessible.focusable: false
    Accessible.onPressAction: root.press()

    function press() {
        if (!isInert)
            pressed();
    }

    Symbol {
        anchors.centerIn: parent
        width: 10
        height: 10
        name: root.symbol
        color: Qt.rgba(1, 1, 1, root.isInert ? 0.25 : 0.8)
    }

    MouseArea {
        anchors.fill: parent
        onClicked: root.press()
    }
}
