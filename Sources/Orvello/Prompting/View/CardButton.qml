import QtQuick
import Orvello

// A button on the prompter's card. While it is inert it still takes the press, so that a click
// beside the mark never drags the panel away.
SymbolButton {
    id: root

    required property string description // For those who cannot see it.
    property bool isInert: false

    signal activated()

    implicitWidth: CardStyle.capsuleHeight
    implicitHeight: CardStyle.capsuleHeight
    hoverEnabled: false // The pointer is on the card, too.
    focusPolicy: Qt.NoFocus
    symbolSize: 10
    symbolColor: isInert ? CardStyle.inertSymbol : CardStyle.symbol
    shade: "black"
    onClicked: {
        if (!isInert)
            activated();
    }

    Accessible.ignored: true

    // A disabled item takes no press, so this is not the whole button.
    AccessibleButton {
        anchors.fill: parent
        enabled: !root.isInert
        name: root.description
        onPressed: root.activated()

        Accessible.role: Accessible.Button
    }
}
