import QtQuick
import QtQuick.Layouts
import Orvello

TourPage {
    id: root

    required property WelcomeTour tour
    required property string headingFamily
    required property facts facts
    readonly property bool isSurelyHidden: facts.canHideWindows && !facts.capturesMayShowHidden

    number: 1
    columnWidth: 600 // With the card it is the fullest page, whatever the language.
    spacing: 20

    TourHeading {
        Layout.fillWidth: true
        Layout.bottomMargin: 10
        family: root.headingFamily
        font.pixelSize: 22
        text: !root.facts.canHideWindows ? qsTr("One rule keeps your notes off the recording: share a window, never the whole screen.")
            : !root.isSurelyHidden ? qsTr("One rule: share a window, never the whole screen.")
            : !root.facts.zoomChoosesCapture ? qsTr("One rule and one safety net keep your notes off the recording.")
            : qsTr("One rule, one safety net, and one Zoom setting keep your notes off the recording.")
    }
    TourFeature {
        symbol: root.facts.canHideWindows ? "checkmark.shield.fill" : "eye.trianglebadge.exclamationmark"
        title: root.facts.canHideWindows ? qsTr("Stealth Mode is on by default") : qsTr("This desktop cannot hide a window")
        text: !root.facts.canHideWindows
              ? qsTr("No app can keep its window out of screen captures here, so Stealth Mode has no effect. The prompter says so on its card: whoever sees your whole screen sees it too.")
              : qsTr("Turn it on before you share and leave it alone. Toggling it mid-share can make your meeting app draw a gray box where the prompter sits — close and reopen Orvello to clear it.")
    }
    TourFeature {
        symbol: "macwindow.on.rectangle"
        title: root.facts.canHideWindows ? qsTr("Want zero risk? Share just the window") : qsTr("Share just the window")
        text: root.isSurelyHidden
              //: %1: presentation programs, as in "Keynote or PowerPoint".
              ? qsTr("Full-screen sharing works with Stealth Mode on. Sharing only the %1 window takes the risk to zero — a window share can never include the prompter.").arg(root.facts.presenters)
              : root.facts.canHideWindows
              //: %1: presentation programs, as in "Keynote or PowerPoint".
              ? qsTr("A share of the full screen may show the prompter here. Sharing only the %1 window takes the risk to zero — a window share can never include it.").arg(root.facts.presenters)
              : qsTr("In your meeting app, choose the window of your slides instead of the entire screen, and keep the prompter beside it: some recorders capture the window's place with everything in front of it.")
    }
    TourZoomCard {
        // Where the desktop hides the prompter, whatever Zoom does, there is nothing to set.
        visible: root.tour.zoomInstalled && (root.facts.zoomChoosesCapture || !root.facts.canHideWindows)
        facts: root.facts
        onCopyRequested: root.tour.copyZoomPath()
    }
}
