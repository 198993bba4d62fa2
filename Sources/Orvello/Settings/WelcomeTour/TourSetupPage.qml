pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Orvello

TourPage {
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

        TourHeading {
            Layout.fillWidth: true
            family: root.headingFamily
            text: qsTr("You're set. Here's where things are.")
        }
        TourText {
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

        TourSection {
            Layout.preferredWidth: 340
            symbol: "keyboard"
            title: qsTr("Shortcuts")

            TourKeyRow {
                key: root.triggers.toggle ?? qsTr("⌥⌘P")
                label: qsTr("Start / pause")
            }
            TourKeyRow {
                key: root.triggers.faster && root.triggers.slower ? root.triggers.faster + "  /  " + root.triggers.slower : qsTr("⌥⌘↑ ↓")
                label: qsTr("Speed")
            }
            TourKeyRow {
                key: root.triggers.restart ?? qsTr("⌥⌘R")
                label: qsTr("Back to top")
            }
            TourKeyRow {
                key: root.triggers.hide ?? qsTr("⌥⌘H")
                label: qsTr("Show / hide")
            }
            TourKeyRow {
                key: qsTr("P")
                label: qsTr("Pause during a slideshow")
            }
            TourKeyRow {
                key: qsTr("Hover")
                label: qsTr("Pause instantly")
            }
        }
        TourSection {
            Layout.preferredWidth: 244
            symbol: "menubar.rectangle"
            title: qsTr("Menu bar")

            Repeater {
                model: [qsTr("Start / pause scrolling"), qsTr("Voice-Follow Scrolling"), qsTr("Slide Tracking"), qsTr("Stealth Mode")]
                delegate: TourText {
                    required property string modelData

                    Layout.preferredHeight: 26
                    Layout.fillWidth: true
                    leftPadding: 16
                    verticalAlignment: Text.AlignVCenter
                    lineHeight: 1
                    color: TourStyle.text
                    text: modelData

                    Rectangle {
                        x: 2
                        anchors.verticalCenter: parent.verticalCenter
                        width: 5
                        height: 5
                        radius: 2.5
                        color: TourStyle.accent
                    }
                }
            }
            TourText {
                Layout.fillWidth: true
                Layout.topMargin: 4
                text: qsTr("… and Scripts, where you write or import what you say, Settings, and this tour.")
            }
        }
    }
}
