import QtQuick
import Orvello

// The seconds until the text starts, above a text that steps back for as long.
RoundedBox {
    id: root

    required property string number
    required property string fontFamily

    Accessible.role: Accessible.StaticText
    Accessible.name: number
    Accessible.description: qsTr("Countdown")

    radius: CardStyle.cornerRadius
    color: CardStyle.veil

    Text {
        anchors.centerIn: parent
        Accessible.ignored: true
        text: root.number
        textFormat: Text.PlainText
        renderType: Text.NativeRendering
        color: CardStyle.text
        font.family: root.fontFamily
        font.pixelSize: CardStyle.countdownSize
        font.weight: Font.Bold
    }
}
