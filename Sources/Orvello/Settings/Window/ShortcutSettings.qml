import QtQuick
import QtQuick.Controls
import Orvello

// The global keys. Where the desktop assigns them, it says in its own words what they are.
SettingsSection {
    id: root

    required property AssignedKeys assignedKeys

    readonly property var triggers: assignedKeys.triggers // By what the key does.

    title: qsTr("Keyboard shortcuts (global)")

    SettingsShortcut {
        label: qsTr("Start / pause scrolling")
        keys: root.triggers.toggle ?? qsTr("⌥⌘P")
    }
    SettingsShortcut {
        label: qsTr("Speed up / down")
        keys: root.triggers.faster && root.triggers.slower ? root.triggers.faster + "  /  " + root.triggers.slower : qsTr("⌥⌘↑  /  ⌥⌘↓")
    }
    SettingsShortcut {
        label: qsTr("Back to top")
        keys: root.triggers.restart ?? qsTr("⌥⌘R")
    }
    SettingsShortcut {
        label: qsTr("Show / hide prompter")
        keys: root.triggers.hide ?? qsTr("⌥⌘H")
    }
    SettingsRow {
        visible: root.assignedKeys.canConfigure
        label: qsTr("Other keys")

        Button {
            text: qsTr("Change Shortcuts…")
            Accessible.name: text
            onClicked: root.assignedKeys.configure()
        }
    }
}
