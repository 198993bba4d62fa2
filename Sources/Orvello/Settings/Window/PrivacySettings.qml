import QtQuick
import Orvello

SettingsSection {
    id: root

    required property SettingsStore settings
    required property bool canExcludeFromCapture // Whether Stealth Mode has an effect here.

    title: qsTr("Privacy")

    SettingsToggle {
        label: qsTr("Stealth Mode — hide from screen sharing, recordings & screenshots")
        isOn: root.settings.stealthMode
        onToggled: isOn => root.settings.stealthMode = isOn
    }
    SettingsNote {
        visible: !root.canExcludeFromCapture
        isWarning: true
        text: qsTr("This desktop cannot hide a window from screen sharing, recordings, or screenshots. There the prompter is visible, whether Stealth Mode is on or off.")
    }
    SettingsNote {
        text: qsTr("With Stealth Mode on before a share starts, the prompter is invisible to screen sharing, recordings, and screenshots (Zoom, Meet, QuickTime, and more) — while staying fully visible to you.")
    }
    SettingsNote {
        text: qsTr("Leave Stealth Mode alone during a live share: toggling it mid-share can make the meeting app draw a gray box in its place (close and open Orvello again to clear it). For zero risk, share the presentation window instead of the whole screen.")
    }
}
