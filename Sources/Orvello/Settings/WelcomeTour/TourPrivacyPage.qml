import QtQuick
import QtQuick.Layouts
import Orvello

TourPage {
    id: root

    required property WelcomeTour tour
    required property string headingFamily
    required property bool canExcludeFromCapture

    number: 1
    spacing: 20

    TourHeading {
        Layout.fillWidth: true
        Layout.bottomMargin: 10
        family: root.headingFamily
        font.pixelSize: 22
        text: qsTr("One rule, one safety net, and one Zoom setting keep your notes off the recording.")
    }
    TourFeature {
        symbol: root.canExcludeFromCapture ? "checkmark.shield.fill" : "eye.trianglebadge.exclamationmark"
        title: qsTr("Stealth Mode is on by default")
        text: qsTr("Turn it on before you share and leave it alone. Toggling it mid-share can make your meeting app draw a gray box where the prompter sits — close and reopen Orvello to clear it.")
    }
    TourFeature {
        symbol: "macwindow.on.rectangle"
        title: qsTr("Want zero risk? Share just the window")
        text: qsTr("Full-screen sharing works with Stealth Mode on. Sharing only the Keynote or PowerPoint window takes the risk to zero — a window share can never include the prompter.")
    }
    TourZoomCard {
        visible: root.tour.zoomInstalled
        onCopyRequested: root.tour.copyZoomPath()
    }
}
