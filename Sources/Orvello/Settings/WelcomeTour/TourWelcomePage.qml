import QtQuick
import QtQuick.Layouts

TourPage {
    id: root

    required property string headingFamily

    number: 0
    spacing: 20

    Image {
        Layout.alignment: Qt.AlignHCenter
        Layout.preferredWidth: 92
        Layout.preferredHeight: 92
        source: "qrc:/Orvello/AppIcon-256.png"
        sourceSize.width: 256
        smooth: true
        mipmap: true
        Accessible.ignored: true
    }
    ColumnLayout {
        Layout.fillWidth: true
        Layout.bottomMargin: 10
        spacing: 6

        TourHeading {
            Layout.fillWidth: true
            family: root.headingFamily
            font.pixelSize: 32
            text: qsTr("Welcome to Orvello")
        }
        TourText {
            Layout.alignment: Qt.AlignHCenter
            Layout.preferredWidth: 400
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: 15
            text: qsTr("Your private teleprompter. Your audience sees your slides — never your notes.")
        }
    }
    TourFeature {
        symbol: "eye.slash"
        title: qsTr("Invisible on screen shares")
        text: qsTr("Stealth Mode hides the prompter from Zoom, Meet, Teams, recordings and screenshots — while you see it perfectly.")
    }
    TourFeature {
        symbol: "waveform"
        title: qsTr("Follows your voice")
        text: qsTr("Scrolls while you speak, waits when you pause. Audio is analyzed on this Mac only — nothing is recorded or uploaded.")
    }
    TourFeature {
        symbol: "rectangle.on.rectangle"
        title: qsTr("Follows your slides")
        text: qsTr("Import a .pptx or an open Keynote or PowerPoint deck and the speaker notes flip with your slideshow.")
    }
}
