import QtQuick
import QtQuick.Layouts
import Orvello

TourPage {
    id: root

    required property string headingFamily
    required property facts facts
    readonly property bool isSurelyHidden: facts.canHideWindows && !facts.capturesMayShowHidden

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
            text: root.isSurelyHidden ? qsTr("Your private teleprompter. Your audience sees your slides — never your notes.")
                                      : qsTr("Your private teleprompter. Share your slides' window alone, keep the prompter beside it, and your notes are yours.")
        }
    }
    TourFeature {
        symbol: "eye.slash"
        title: root.isSurelyHidden ? qsTr("Invisible on screen shares")
             : root.facts.canHideWindows ? qsTr("Hidden where the system allows")
             : qsTr("Beside the window that you share")
        text: root.isSurelyHidden ? qsTr("Stealth Mode hides the prompter from Zoom, Meet, Teams, recordings and screenshots — while you see it perfectly.")
            : root.facts.canHideWindows ? qsTr("Stealth Mode hides the prompter as far as this system allows. Newer recorders may show it all the same: try yours first.")
            : qsTr("Share a window in Zoom, Meet or Teams, keep the prompter beside it, and only you see it. In a share of the whole screen, this desktop shows it to everyone.")
    }
    TourFeature {
        symbol: "waveform"
        title: qsTr("Follows your voice")
        text: root.facts.isMac ? qsTr("Scrolls while you speak, waits when you pause. Audio is analyzed on this Mac only — nothing is recorded or uploaded.")
                               : qsTr("Scrolls while you speak, waits when you pause. Audio is analyzed on this computer only — nothing is recorded or uploaded.")
    }
    TourFeature {
        symbol: "rectangle.on.rectangle"
        title: qsTr("Follows your slides")
        //: %1: presentation programs, as in "Keynote or PowerPoint".
        text: qsTr("Import a .pptx or an open %1 deck and the speaker notes flip with your slideshow.").arg(root.facts.presenters)
    }
}
