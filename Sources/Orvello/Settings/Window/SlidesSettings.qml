import QtQuick
import Orvello

SettingsSection {
    id: root

    required property SettingsStore settings
    required property facts facts

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
        //: The words in quotation marks are those of the card. %1: presentation programs.
        text: root.facts.hasPrivacySettings
              ? qsTr("If sync shows \"No access\": System Settings → Privacy & Security → Automation → Orvello → allow %1, then toggle Slide Tracking off and on.").arg(root.facts.presentersInFull)
              //: The words in quotation marks are those of the card; Scripts and Allow are names in the program.
              : qsTr("If sync shows \"No access\": LibreOffice does not answer other programs until you allow it. Import the open presentation (Scripts → import button), choose Allow when Orvello offers it, then start the slideshow again.")
    }
}
