import QtQuick
import Orvello

SettingsSection {
    id: root

    required property SettingsStore settings

    title: qsTr("Slides")

    SettingsToggle {
        label: qsTr("Slide Tracking — notes follow the live slideshow")
        isOn: root.settings.slideSync
        onToggled: isOn => root.settings.slideSync = isOn
    }
    SettingsNote {
        text: qsTr("With a deck imported (Scripts → import button) and Slide Tracking on, the prompter shows the current slide's speaker notes and flips automatically as you advance in Keynote or PowerPoint. The first time, macOS asks to let Orvello control that app — that's the sync. Turn Slide Tracking off to scroll the whole deck as one normal script instead.")
    }
    SettingsNote {
        text: qsTr("If sync shows \"No access\": System Settings → Privacy & Security → Automation → Orvello → allow Keynote or Microsoft PowerPoint, then toggle Slide Tracking off and on.")
    }
}
