pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Window
import Orvello

// The welcome tour: three pages that turn, and a footer that leads through them.
Rectangle {
    id: root

    required property WelcomeTour tour
    required property string headingFamily
    required property ShortcutList shortcuts
    required property facts facts
    required property VoiceActivityEngine voice
    required property bool hasCloseButton // Where the system draws none above the content.

    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    color: TourStyle.background

    Rectangle {
        anchors.fill: parent
        gradient: Gradient {
            GradientStop {
                position: 0
                color: Qt.alpha(TourStyle.glow, 0.85)
            }
            GradientStop {
                position: 0.55
                color: Qt.alpha(TourStyle.glow, 0.16)
            }
            GradientStop {
                position: 1
                color: Qt.alpha(TourStyle.glow, 0)
            }
        }
    }

    // Without a title bar the background moves the window.
    DragHandler {
        target: null
        onActiveChanged: {
            if (active)
                root.Window.window.startSystemMove();
        }
    }
    Shortcut {
        sequences: ["Return", "Enter"]
        onActivated: root.tour.next()
    }
    Shortcut {
        sequences: ["Escape"]
        onActivated: root.tour.skip()
    }

    Item {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: footer.top
        anchors.topMargin: 12

        TourWelcomePage {
            current: root.tour.page
            headingFamily: root.headingFamily
            facts: root.facts
        }
        TourPrivacyPage {
            current: root.tour.page
            headingFamily: root.headingFamily
            tour: root.tour
            facts: root.facts
        }
        TourSetupPage {
            current: root.tour.page
            headingFamily: root.headingFamily
            shortcuts: root.shortcuts
            facts: root.facts
            voice: root.voice
        }
    }

    TourFooter {
        id: footer

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        tour: root.tour
    }

    TourCloseButton {
        visible: root.hasCloseButton
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 14
        onClicked: root.Window.window.close()
    }

    // Separates a window without a frame from a dark one behind it.
    Rectangle {
        visible: root.hasCloseButton
        anchors.fill: parent
        color: "transparent"
        border.color: Qt.rgba(1, 1, 1, 0.14)
    }
}
