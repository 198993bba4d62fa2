import QtQuick
import QtQuick.Layouts
import Orvello

// A card with a symbol and a title above its rows.
Rectangle {
    id: root

    required property string symbol
    required property string title
    default property alias rows: content.data

    Layout.fillWidth: true
    Layout.fillHeight: true
    implicitHeight: content.implicitHeight + 32
    radius: 14
    color: TourStyle.card
    border.color: TourStyle.cardBorder
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    ColumnLayout {
        id: content

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 16
        anchors.leftMargin: 18
        anchors.rightMargin: 18
        spacing: 4

        RowLayout {
            Layout.fillWidth: true
            Layout.bottomMargin: 6
            spacing: 10

            Symbol {
                Layout.preferredWidth: 20
                Layout.preferredHeight: 20
                name: root.symbol
                color: TourStyle.symbol
            }
            TourText {
                Layout.fillWidth: true
                text: root.title
                color: TourStyle.text
                font.pixelSize: 15
                font.bold: true
                lineHeight: 1
                Accessible.role: Accessible.Heading
            }
        }
    }
}
