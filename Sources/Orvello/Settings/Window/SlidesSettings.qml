import QtQuick
import QtQuick.Controls
import Orvello

SettingsSection {
    id: root

    required property SettingsStore settings
    required property facts facts
    required property ImpressPresenter impress // Null where there is none.
    required property string consent // What is agreed to by allowing it.

    title: qsTr("Slides")

    SettingsToggle {
        label: qsTr("Slide Tracking — notes follow the live slideshow")
        isOn: root.settings.slideSync
        onToggled: isOn => root.settings.slideSync = isOn
    }
    SettingsNote {
        //: %1: presentation programs, as in "Keynote or PowerPoint".
        text: (root.facts.asksBeforeControl
               ? qsTr("With a deck imported (Scripts → import button) and Slide Tracking on, the prompter shows the current slide's speaker notes and flips automatically as you advance in %1. The first time, macOS asks to let Orvello control that app — that's the sync. Turn Slide Tracking off to scroll the whole deck as one normal script instead.")
               //: %1: a presentation program.
               : qsTr("With a deck imported (Scripts → import button) and Slide Tracking on, the prompter shows the current slide's speaker notes and flips automatically as you advance in %1. Turn Slide Tracking off to scroll the whole deck as one normal script instead.")).arg(root.facts.presenters)
    }
    SettingsNote {
        visible: root.facts.hasPrivacySettings
        //: The words in quotation marks are those of the card. %1: presentation programs.
        text: qsTr("If sync shows \"No access\": System Settings → Privacy & Security → Automation → Orvello → allow %1, then toggle Slide Tracking off and on.").arg(root.facts.presentersInFull)
    }
    SettingsRow {
        visible: root.impress !== null
        labelShare: 0.7
        label: !root.impress?.isAllowed ? qsTr("Orvello may not follow Impress")
               : root.impress.obstacle === "" ? qsTr("Orvello may follow Impress")
               : qsTr("Orvello may follow Impress, but could not")
        Accessible.role: Accessible.StaticText
        Accessible.name: label

        Button {
            text: root.impress?.isAllowed ? qsTr("Take Back") : qsTr("Allow")
            Accessible.name: text
            onClicked: root.impress.isAllowed = !root.impress.isAllowed
        }
    }
    SettingsNote {
        visible: root.impress !== null && root.impress.obstacle !== ""
        isWarning: true
        text: root.impress?.obstacle ?? ""
    }
    SettingsNote {
        visible: root.impress !== null
        text: root.consent
    }
}
