import QtQuick
import QtQuick.Controls
import Orvello

SettingsSection {
    id: root

    required property UpdateController updates
    required property string version
    required property facts facts

    title: qsTr("Updates")

    SettingsToggle {
        label: qsTr("Check for updates automatically (once a day)")
        isOn: root.updates.checksAutomatically
        enabled: root.updates.hasFeed
        onToggled: isOn => root.updates.checksAutomatically = isOn
    }
    SettingsNote {
        text: !root.updates.hasFeed
              ? qsTr("This Orvello was built without the address of an update feed, so it cannot look for updates. Whoever you got it from has newer versions.")
              : !root.facts.installsUpdates
              ? qsTr("The check asks the vendor's web site for the latest version and sends nothing about you or your computer beyond the app version. Orvello installs nothing by itself: if you want the new version, it opens the download page.")
              : qsTr("The check asks the vendor's web site for the latest version and sends nothing about you or your Mac beyond the app version. Updates are signed, and you always confirm before one installs.")
    }
    SettingsRow {
        labelShare: 0.7
        //: %1: the version.
        label: !root.updates.hasFeed ? qsTr("Orvello %1").arg(root.version)
                                     : root.updates.lastCheckText === "" ? qsTr("Orvello %1 — not checked yet").arg(root.version)
                                                 //: %1: the version; %2: a date and a time.
                                                 : qsTr("Orvello %1 — last checked %2").arg(root.version).arg(root.updates.lastCheckText)
        Accessible.role: Accessible.StaticText
        Accessible.name: label

        Button {
            text: qsTr("Check Now")
            Accessible.name: text
            enabled: root.updates.canCheckForUpdates
            onClicked: root.updates.checkForUpdates()
        }
    }
}
