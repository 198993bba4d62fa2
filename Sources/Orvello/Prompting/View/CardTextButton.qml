import QtQuick
import QtQuick.Templates as T
import Orvello

// A button with a word or two on the prompter's card.
T.Button {
    id: root

    signal activated()

    implicitWidth: Math.ceil(implicitContentWidth) + 16
    implicitHeight: CardStyle.capsuleHeight
    hoverEnabled: false // The card must see the pointer, too.
    focusPolicy: Qt.NoFocus
    onClicked: activated()

    contentItem: SmallLabel {
        text: root.text
        color: CardStyle.strongLabel
        font.weight: Font.DemiBold
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        Accessible.ignored: true
    }

    background: RoundedBox {
        radius: height / 2
        color: Qt.rgba(1, 1, 1, root.down ? 0.3 : 0.16)
    }

    Accessible.ignored: true

    AccessibleButton {
        anchors.fill: parent
        name: root.text
        onPressed: root.activated()

        Accessible.role: Accessible.Button
    }
}
