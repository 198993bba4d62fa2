import QtQuick
import QtQuick.Layouts
import Orvello

// A symbol, and beside it a bold title above a text.
RowLayout {
    id: root

    required property string symbol
    required property string title
    required property string text

    Layout.fillWidth: true
    spacing: 16
    Accessible.role: Accessible.StaticText
    //: Read aloud, two sentences. %1: a title; %2: a text.
    Accessible.name: qsTr("%1. %2").arg(title).arg(text)

    Rectangle {
        Layout.alignment: Qt.AlignTop
        implicitWidth: 44
        implicitHeight: 44
        radius: 12
        color: Qt.alpha(TourStyle.accent, 0.16)

        Symbol {
            anchors.centerIn: parent
            width: 24
            height: 24
            name: root.symbol
            color: TourStyle.symbol
        }
    }

    ColumnLayout {
        Layout.fillWidth: true
        spacing: 3

        TourText {
            Layout.fillWidth: true
            text: root.title
            color: TourStyle.text
            font.pixelSize: 15
            font.bold: true
            Accessible.ignored: true
        }
        TourText {
            Layout.fillWidth: true
            text: root.text
            Accessible.ignored: true
        }
    }
}
