import QtQuick

// A row with a switch.
SettingsRow {
    id: root

    required property bool isOn

    signal toggled(isOn: bool)

    labelShare: 0.8
    onClicked: {
        toggle.forceActiveFocus(Qt.MouseFocusReason);
        root.toggled(!root.isOn);
    }

    SettingsSwitch {
        id: toggle

        checked: root.isOn
        Accessible.name: root.label
        // It shows the setting, even if that did not accept the click.
        onToggled: {
            root.toggled(checked);
            checked = Qt.binding(() => root.isOn);
        }
    }
}
