import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Orvello

SettingsSection {
    id: root

    required property SettingsStore settings
    required property SettingsForm form
    required property VoiceActivityEngine voice
    required property facts facts

    title: qsTr("Voice-follow")

    SettingsToggle {
        label: qsTr("Scroll while I speak, pause when I pause")
        isOn: root.settings.voiceFollow
        onToggled: isOn => root.settings.voiceFollow = isOn
    }
    SettingsSlider {
        label: root.form.sensitivityLabel
        from: 0.1
        to: 1.0
        step: 0.05
        value: root.settings.voiceSensitivity
        onMoved: value => root.settings.voiceSensitivity = value
    }
    SettingsRow {
        label: qsTr("Mic level")

        ProgressBar {
            id: level

            Layout.preferredWidth: 180
            Layout.minimumWidth: 180
            Layout.preferredHeight: 14
            from: 0
            to: 1
            value: root.voice.level
            Accessible.name: qsTr("Mic level")

            // What is louder than this counts as speech.
            Rectangle {
                x: Math.round((level.mirrored ? 1 - root.voice.thresholdLevel : root.voice.thresholdLevel) * (level.width - width))
                y: -2
                z: 1
                width: 2
                height: level.height + 4
                color: root.palette.windowText
            }
        }
    }
    SettingsNote {
        visible: root.voice.micAuthorized === false
        isWarning: true
        text: !root.facts.hasPrivacySettings
              ? qsTr("Microphone access is denied. Allow it in your desktop's privacy settings, then toggle voice-follow again.")
              : qsTr("Microphone access is denied. Enable it in System Settings → Privacy & Security → Microphone, then toggle voice-follow again.")
    }
    SettingsNote {
        visible: root.voice.echoCancellation === VoiceActivityEngine.Unavailable
        text: qsTr("Echo cancellation: not available. On speakers, loud far-end audio may nudge the prompter — headphones avoid this.")
    }
    // Neither is true once nothing is being captured.
    SettingsNote {
        visible: root.voice.isListening && root.voice.aecActive
        text: root.facts.isMac ? qsTr("Echo cancellation: on — audio playing from this Mac won't move the prompter.")
                               : qsTr("Echo cancellation: on — audio playing from this computer won't move the prompter.")
    }
    SettingsNote {
        visible: root.voice.isListening && root.voice.aecHoldReason !== ""
        //: %1: why, such as "another app is using the microphone" or "Zoom is open".
        text: qsTr("Echo cancellation: paused (%1) so your voice keeps working in calls. On speakers, loud far-end audio may nudge the prompter — headphones avoid this.").arg(root.voice.aecHoldReason)
    }
    SettingsNote {
        text: qsTr("Audio is analyzed on-device for loudness only. Nothing is recorded, recognized, or uploaded.")
    }
    SettingsRow {
        readonly property SensitivityTest test: root.voice.sensitivityTest

        label: test.message !== "" ? test.message : qsTr("Find the sensitivity for my voice")

        Button {
            visible: root.voice.sensitivityTest.hasProposal
            text: qsTr("Use It")
            onClicked: root.voice.sensitivityTest.useProposal()
            Accessible.name: text
        }
        Button {
            enabled: !root.voice.sensitivityTest.isRunning
            text: qsTr("Test")
            onClicked: root.voice.sensitivityTest.begin()
            Accessible.name: text
            Accessible.description: qsTr("Speak normally for five seconds.")
        }
    }
    SettingsPicker {
        visible: root.voice.microphoneChoices.length > 0
        label: qsTr("Microphone")
        choices: root.voice.microphoneChoices
        index: root.voice.microphoneIndex
        onPicked: index => root.voice.chooseMicrophone(index)
    }
    SettingsNote {
        visible: root.voice.micAuthorized !== false && text !== ""
        isWarning: root.voice.trouble !== VoiceActivityEngine.None
        text: root.voice.hearing
    }
}
