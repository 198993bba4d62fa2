import QtQuick
import Orvello

SettingsSection {
    id: root

    required property SettingsStore settings
    required property SettingsForm form
    required property facts facts
    required property string toggleKey // What people call it.

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
        //: %1: presentation programs, as in "Keynote or PowerPoint"; %2: keys, as in "⌥⌘P".
        text: qsTr("While a %1 slideshow is on-screen (where the cursor is hidden, so hover-to-pause can't work), a plain P pauses or resumes. It's active only during the slideshow, so it won't interfere with typing elsewhere. %2 always works too.").arg(root.facts.presenters).arg(root.toggleKey)
    }
}
