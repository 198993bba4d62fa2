import QtQuick
import Orvello

// A button on the prompter's card. Even when disabled it takes the press, so that a click beside
// the mark never drags the panel away.
SymbolButton {
    id: root

    required property string description // For those who cannot see it.
    property bool isDisabled: false

    signal activated()

    implicitWidth: CardStyle.capsuleHeight
    implicitHeight: CardStyle.capsuleHeight
    hoverEnabled: false // The card must see the pointer, too.
    focusPolicy: Qt.NoFocus
    symbolSize: 10
    symbolColor: isDisabled ? CardStyle.disabledSymbol : CardStyle.symbol
    shade: "black"
    onClicked: {
        if (!isDisabled)
            activated();
    }

    Accessible.ignored: true

    // A disabled item takes no press, so this is not the whole button.
    AccessibleButton {
        anchors.fill: parent
        enabled: !root.isDisabled
        name: root.description
        onPressed: root.activated()

        Accessible.role: Accessible.Button
    }
}
