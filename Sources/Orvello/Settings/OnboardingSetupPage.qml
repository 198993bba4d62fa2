pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Orvello

OnboardingPage {
    id: root

    required property string headingFamily
    required property AssignedKeys assignedKeys

    readonly property var triggers: assignedKeys.triggers // By what the key does.

    number: 2
    columnWidth: 600
    spacing: 24

    ColumnLayout {
        Layout.fillWidth: true
        spacing: 8

        OnboardingHeading {
            Layout.fillWidth: true
            family: root.headingFamily
            text: qsTr("You're set. Here's where things are.")
        }
        OnboardingText {
            Layout.alignment: Qt.AlignHCenter
            Layout.preferredWidth: 440
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: 15
            text: qsTr("Drag the prompter right under your camera for natural eye contact. Resize it from any edge.")
        }
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: 16

        OnboardingSection {
            Layout.preferredWidth: 340
            symbol: "keyboard"
            title: qsTr("Shortcuts")

            OnboardingKeyRow {
                key: root.triggers.toggle ?? qsTr("⌥⌘P")
                label: qsTr("Start / pause")
            }
            OnboardingKeyRow {
                key: root.triggers.faster && root.triggers.slower ? root.triggers.faster + "  /  " + root.triggers.slower : qsTr("⌥⌘↑ ↓")
                label: qsTr("Speed")
            }
            OnboardingKeyRow {
                key: root.triggers.restart ?? qsTr("⌥⌘R")
                label: qsTr("Back to top")
            }
            OnboardingKeyRow {
                key: root.triggers.hide ?? qsTr("⌥⌘H")
                label: qsTr("Show / hide")
            }
            OnboardingKeyRow {
                key: qsTr("P")
                label: qsTr("Pause during a slideshow")
            }
            OnboardingKeyRow {
                key: qsTr("Hover")
                label: qsTr("Pause instantly")
            }
        }
        OnboardingSection {
            Layout.preferredWidth: 244
            symbol: "menubar.rectangle"
            title: qsTr("Menu bar")

            Repeater {
                model: [qsTr("Start / pause scrolling"), qsTr("Voice-Follow Scrolling"), qsTr("Slide Tracking"), qsTr("Stealth Mode")]
                delegate: OnboardingText {
                    required property string modelData

                    Layout.preferredHeight: 26
                    Layout.fillWidth: true
                    leftPadding: 16
                    verticalAlignment: Text.AlignVCenter
                    lineHeight: 1
                    color: OnboardingStyle.text
                    text: modelData

                    Rectangle {
                        x: 2
                        anchors.verticalCenter: parent.verticalCenter
                        width: 5
                        height: 5
                        radius: 2.5
                        color: OnboardingStyle.accent
                    }
                }
            }
            OnboardingText {
                Layout.fillWidth: true
                Layout.topMargin: 4
                text: qsTr("… and Scripts, where you write or import what you say, Settings, and this tour.")
            }
        }
    }
}
