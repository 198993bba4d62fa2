pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Layouts
import Orvello

TourPage {
    id: root

    required property string headingFamily
    required property ShortcutList shortcuts
    required property facts facts
    required property VoiceActivityEngine voice

    number: 2
    columnWidth: 600
    spacing: 8 // In some languages the page is full.

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

            Repeater {
                model: root.shortcuts
                delegate: TourKeyRow {}
            }
            TourKeyRow {
                keys: "P"
                label: qsTr("Pause during a slideshow")
            }
            TourKeyRow {
                //: Instead of a key: the pointer rests on the prompter.
                keys: qsTr("Hover")
                label: qsTr("Pause instantly")
            }
        }
        TourSection {
            Layout.preferredWidth: 244
            symbol: "menubar.rectangle"
            title: root.facts.hasMenuBar ? qsTr("Menu bar") : qsTr("Tray menu")

            Repeater {
                model: root.shortcuts.menuLines
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
                text: root.facts.hasMenuBar ? qsTr("… and Scripts, where you write or import what you say, Settings, and this tour.")
                                            : qsTr("… and Scripts, where you write or import what you say, Settings, and this tour. Without a tray, right-click the prompter.")
            }
        }
    }
    TourVoiceTest {
        Layout.fillWidth: true
        voice: root.voice
    }
}
