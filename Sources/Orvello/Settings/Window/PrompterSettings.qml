import QtQuick
import Orvello

SettingsSection {
    id: root

    required property SettingsStore settings
    required property SettingsForm form
    required property Compositing compositing

    title: qsTr("Prompter")

    SettingsSlider {
        label: root.form.fontSizeLabel
        from: 16
        to: 64
        step: 1
        value: root.settings.fontSize
        onMoved: value => root.settings.fontSize = value
    }
    SettingsSlider {
        label: root.form.speedLabel
        from: 15
        to: 240
        step: 5
        value: root.settings.speed
        onMoved: value => root.settings.speed = value
    }
    SettingsPicker {
        label: qsTr("Text color")
        choices: root.form.colorNames
        index: root.form.colorIndex
        onPicked: index => root.form.colorIndex = index
    }
    SettingsSlider {
        label: root.form.opacityLabel
        from: 0.15
        to: 1.0
        step: 0.05
        value: root.settings.backgroundOpacity
        onMoved: value => root.settings.backgroundOpacity = value
    }
    SettingsNote {
        visible: !root.compositing.isOn
        //: A compositor is the part of a Linux desktop that makes windows translucent.
        text: qsTr("The opacity has no effect at the moment: windows can be translucent only while the desktop runs a compositor.")
    }
}
