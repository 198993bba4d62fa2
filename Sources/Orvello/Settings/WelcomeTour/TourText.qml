import QtQuick

// A line or paragraph of the welcome tour.
Text {
    color: TourStyle.secondaryText
    font.pixelSize: 13
    lineHeight: 1.15
    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
