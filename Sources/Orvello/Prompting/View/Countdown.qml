import QtQuick

// The seconds until the text starts, above a text that steps back for as long.
Rectangle {
    id: root

    required property string number
    required property string fontFamily

    Accessible.role: Accessible.StaticText
    Accessible.name: number
    Accessible.description: qsTr("Countdown")

    radius: 16
    color: Qt.rgba(0, 0, 0, 0.6)

    Text {
        anchors.centerIn: parent
        Accessible.ignored: true
        text: root.number
        textFormat: Text.PlainText
        color: "white"
        font.family: root.fontFamily
        font.pixelSize: 84
        font.weight: Font.Bold
    }
}
