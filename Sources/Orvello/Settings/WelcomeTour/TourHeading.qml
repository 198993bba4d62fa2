import QtQuick

// What a page of the welcome tour begins with.
Text {
    required property string family

    color: TourStyle.text
    font.family: family
    font.pixelSize: 28
    font.weight: Font.Bold
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    horizontalAlignment: Text.AlignHCenter
    Accessible.role: Accessible.Heading
    Accessible.name: text
}
