pragma ComponentBehavior: Bound
import QtQuick
import Orvello

SettingsSection {
    id: root

    required property ShortcutList shortcuts

    title: qsTr("Keyboard shortcuts (global)")

    Repeater {
        model: root.shortcuts
        delegate: SettingsShortcut {}
    }
}
