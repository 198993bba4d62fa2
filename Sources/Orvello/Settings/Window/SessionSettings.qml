import QtQuick
import Orvello

SettingsSection {
    id: root

    required property SettingsStore settings
    required property SettingsForm form

    title: qsTr("Session")

    SettingsPicker {
        label: qsTr("Countdown before start")
        choices: root.form.countdownNames
        index: root.form.countdownIndex
        onPicked: index => root.form.countdownIndex = index
    }
    SettingsToggle {
        label: qsTr("Press P to pause during a slideshow")
        isOn: root.settings.slideshowPauseKey
        onToggled: isOn => root.settings.slideshowPauseKey = isOn
    }
    SettingsNote {
        text: qsTr("While a Keynote or PowerPoint slideshow is on-screen (where the cursor is hidden, so hover-to-pause can't work), a plain P pauses or resumes. It's active only during the slideshow, so it won't interfere with typing elsewhere. ⌥⌘P always works too.")
    }
}
