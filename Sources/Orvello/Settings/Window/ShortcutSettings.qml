pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Orvello

// The global keys. Where the desktop assigns them, they appear in its own words.
SettingsSection {
    id: root

    required property ShortcutList shortcuts

    title: qsTr("Keyboard shortcuts (global)")

    Repeater {
        model: root.shortcuts
        delegate: SettingsShortcut {}
    }
    SettingsRow {
        visible: root.shortcuts.assignedKeys.canConfigure
        label: qsTr("Other keys")

        Button {
            text: qsTr("Change Shortcuts…")
            Accessible.name: text
            onClicked: root.shortcuts.assignedKeys.configure()
        }
    }
}
