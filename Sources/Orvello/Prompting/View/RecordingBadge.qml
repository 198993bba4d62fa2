import QtQuick

// Says that others can see the prompter, so plainly that nobody believes it hidden.
Rectangle {
    property alias message: label.text

    Accessible.role: Accessible.AlertMessage
    Accessible.name: message

    implicitWidth: label.implicitWidth + 12
    implicitHeight: 16
    radius: 4
    color: "#ff453a" // SignalColors::red

    Text {
        id: label
        Accessible.ignored: true
        anchors.centerIn: parent
        textFormat: Text.PlainText
        renderType: Text.NativeRendering
        color: "white"
        font.pixelSize: 10
        font.weight: Font.Bold
    }
}
