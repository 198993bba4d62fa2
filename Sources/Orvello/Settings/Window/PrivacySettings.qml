import QtQuick
import Orvello

SettingsSection {
    id: root

    required property SettingsStore settings
    required property facts facts

    title: qsTr("Privacy")

    SettingsToggle {
        label: qsTr("Stealth Mode — hide from screen sharing, recordings & screenshots")
        isOn: root.settings.stealthMode
        onToggled: isOn => root.settings.stealthMode = isOn
    }
    SettingsNote {
        visible: !root.facts.canHideWindows
        isWarning: true
        text: qsTr("This desktop cannot hide a window from screen sharing, recordings, or screenshots. There the prompter is visible, whether Stealth Mode is on or off.")
    }
    SettingsNote {
        text: root.facts.canHideWindows && root.facts.capturesMayShowHidden
              ? qsTr("With Stealth Mode on before a share starts, the prompter stays out of screen sharing, recordings, and screenshots as far as this system allows — while staying fully visible to you. Newer recorders may show it all the same: try yours before you rely on it.")
              : root.facts.canHideWindows && root.facts.hasQuickTime
              ? qsTr("With Stealth Mode on before a share starts, the prompter is invisible to screen sharing, recordings, and screenshots (Zoom, Meet, QuickTime, and more) — while staying fully visible to you.")
              : root.facts.canHideWindows
              ? qsTr("With Stealth Mode on before a share starts, the prompter is invisible to screen sharing, recordings, and screenshots — while staying fully visible to you.")
              : qsTr("Stealth Mode takes effect on desktops that can keep a window out of screen sharing, recordings, and screenshots. With it on, the prompter's card says when this one cannot.")
    }
    SettingsNote {
        text: !root.facts.canHideWindows
              ? qsTr("Share the presentation window instead of the whole screen, and keep the prompter beside it: some programs, recorders above all, capture the place of a window with everything that is in front of it.")
              : qsTr("Leave Stealth Mode alone during a live share: toggling it mid-share can make the meeting app draw a gray box in its place (close and open Orvello again to clear it). For zero risk, share the presentation window instead of the whole screen.")
    }
}
