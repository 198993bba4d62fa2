import QtQuick
import QtQuick.Layouts
import Orvello

// The microphone's level with the threshold of speech, and the test that finds the sensitivity for the user's voice.
RowLayout {
    id: root

    required property VoiceActivityEngine voice

    readonly property SensitivityTest test: voice.sensitivityTest

    spacing: 12

    TourText {
        Layout.fillWidth: true
        color: TourStyle.text
        text: root.test.message !== "" ? root.test.message : qsTr("Find the sensitivity for my voice")
    }
    Rectangle {
        id: level

        Layout.preferredWidth: 120
        Layout.preferredHeight: 8
        radius: 4
        color: Qt.alpha(TourStyle.text, 0.14)
        Accessible.role: Accessible.ProgressBar
        Accessible.name: qsTr("Mic level")

        Rectangle {
            width: root.voice.level * level.width
            height: level.height
            radius: level.radius
            color: TourStyle.accent
        }
        // What is louder than this counts as speech.
        Rectangle {
            x: root.voice.thresholdLevel * (level.width - width)
            y: -3
            width: 2
            height: level.height + 6
            color: TourStyle.text
        }
    }
    TourButton {
        implicitHeight: 28
        visible: root.test.hasProposal
        text: qsTr("Use It")
        onClicked: root.test.useProposal()
    }
    TourButton {
        implicitHeight: 28
        enabled: !root.test.isRunning
        text: qsTr("Test")
        onClicked: root.test.begin()
    }
}
