import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Orvello

// Says above a deck's body why it cannot be edited here.
Rectangle {
    id: root

    required property string text

    implicitHeight: row.implicitHeight + 16
    color: Qt.alpha(palette.windowText, 0.07)

    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: 14
        anchors.rightMargin: 14
        spacing: 8

        Symbol {
            Layout.preferredWidth: 16
            Layout.preferredHeight: 16
            name: "rectangle.on.rectangle"
            color: root.palette.windowText
        }
        Label {
            Layout.fillWidth: true
            text: root.text
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font.pixelSize: 12
        }
    }
}
