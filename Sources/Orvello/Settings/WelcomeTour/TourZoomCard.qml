import QtQuick
import QtQuick.Layouts
import Orvello

// The one setting of Zoom that matters, and the way to it.
Rectangle {
    id: root

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
                text: qsTr("Using Zoom? Set this once")
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
            text: qsTr("Zoom's default, Auto, usually works — but it picks a capture method per session, and one of them can show your notes.")
        }
        TourText {
            Layout.fillWidth: true
            textFormat: Text.StyledText
            color: TourStyle.text
            text: qsTr("Zoom → Settings → Share Screen → Advanced → Screen capture mode → <b>Advanced capture with window filtering</b> (or Previous operating systems).")
            Accessible.name: text.replace(/<[^>]*>/g, "")
        }
    }
}
