import QtQuick
import QtQuick.Controls
import Orvello

SettingsSection {
    id: root

    required property SettingsStore settings
    required property ReadingPace pace

    title: qsTr("Reading")

    SettingsRow {
        id: row

        label: root.pace.isByCharacters ? qsTr("Characters a minute") : qsTr("Words a minute")

        SpinBox {
            id: pace

            enabled: root.pace.unitsPerMinute > 0
            editable: true
            activeFocusOnTab: true
            from: 10
            to: 999
            stepSize: Math.max(1, Math.round(value * 0.02))
            onValueModified: root.pace.setUnitsPerMinute(value)
            Accessible.name: row.label

            // What the user does would end a binding of the value's own.
            Binding {
                target: pace
                property: "value"
                value: Math.round(root.pace.unitsPerMinute)
            }
        }
    }
    SettingsNote {
        text: root.pace.description
    }
    SettingsToggle {
        enabled: root.pace.isKept || root.pace.unitsPerMinute > 0
        label: qsTr("Keep my pace with another text, size or width")
        isOn: root.pace.isKept
        onToggled: isOn => root.pace.isKept = isOn
    }
    SettingsPicker {
        readonly property var stored: ["", "left", "elapsed", "both"]

        label: qsTr("Time on the prompter")
        choices: [qsTr("None"), qsTr("Left"), qsTr("Elapsed"), qsTr("Both")]
        index: stored.indexOf(root.settings.cardTime)
        onPicked: index => root.settings.cardTime = stored[index]
    }
}
