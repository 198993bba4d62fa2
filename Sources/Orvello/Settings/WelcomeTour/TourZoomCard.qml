import QtQuick
import QtQuick.Layouts
import Orvello

// The one setting of Zoom that matters, and the way to it.
Rectangle {
    id: root

    required property facts facts

    signal copyRequested

    Layout.fillWidth: true
    implicitHeight: content.implicitHeight + 28
    radius: 14
    color: TourStyle.card
    border.color: TourStyle.cardBorder
    Accessible.role: Accessible.Grouping
    Accessible.name: title.text

    ColumnLayout {
        id: content

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        spacing: 5

        RowLayout {
            Layout.fillWidth: true
            spacing: 9

            Symbol {
                Layout.preferredWidth: 18
                Layout.preferredHeight: 18
                name: "video.fill"
                color: TourStyle.highlight
            }
            TourText {
                id: title

                Layout.fillWidth: true
                text: root.facts.zoomChoosesCapture ? qsTr("Using Zoom? Set this once") : qsTr("Using Zoom? Share a window")
                color: TourStyle.text
                font.pixelSize: 15
                font.bold: true
                lineHeight: 1
            }
            TourCopyButton {
                onClicked: root.copyRequested()
            }
        }
        TourText {
            Layout.fillWidth: true
            text: !root.facts.zoomChoosesCapture
                  ? qsTr("No setting of Zoom hides the prompter here: a share of the entire screen shows your notes.")
                  : qsTr("Zoom's default, Auto, usually works — but it picks a capture method per session, and one of them can show your notes.")
        }
        TourText {
            Layout.fillWidth: true
            textFormat: Text.StyledText
            color: TourStyle.text
            //: The words between <b> and </b> are shown in bold.
            text: !root.facts.zoomChoosesCapture
                  ? qsTr("Zoom → Share Screen → <b>your slides' window</b> (not Entire Screen).")
                  : qsTr("Zoom → Settings → Share Screen → Advanced → Screen capture mode → <b>Advanced capture with window filtering</b> (or Previous operating systems).")
            Accessible.name: text.replace(/<[^>]*>/g, "")
        }
    }
}
