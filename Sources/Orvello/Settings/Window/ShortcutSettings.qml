import QtQuick

SettingsSection {
    title: qsTr("Keyboard shortcuts (global)")

    SettingsShortcut {
        label: qsTr("Start / pause scrolling")
        keys: qsTr("⌥⌘P")
    }
    SettingsShortcut {
        label: qsTr("Speed up / down")
        keys: qsTr("⌥⌘↑  /  ⌥⌘↓")
    }
    SettingsShortcut {
        label: qsTr("Back to top")
        keys: qsTr("⌥⌘R")
    }
    SettingsShortcut {
        label: qsTr("Show / hide prompter")
        keys: qsTr("⌥⌘H")
    }
}
