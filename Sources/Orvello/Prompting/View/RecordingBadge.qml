import QtQuick
import Orvello

// Says that others can see the prompter, so plainly that nobody takes it for hidden.
RoundedBox {
    property alias message: label.text

    Accessible.role: Accessible.AlertMessage
    Accessible.name: message

    implicitWidth: label.implicitWidth + 12
    implicitHeight: 16
    radius: 4
    color: CardStyle.red

    Text {
        id: label
        Accessible.ignored: true
        anchors.centerIn: parent
        textFormat: Text.PlainText
        renderType: Text.NativeRendering
        color: CardStyle.text
        font.pixelSize: CardStyle.labelSize
        font.weight: Font.Bold
    }
}
