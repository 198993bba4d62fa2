import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Orvello

// Says above a deck's body why it cannot be edited here, and has the button that reads its file anew.
Rectangle {
    id: root

    required property string text
    required property string fileText // What is to be said about the file; empty while nothing is.
    required property string filePath
    required property string action

    signal updateRequested

    implicitHeight: row.implicitHeight + 16
    color: Qt.alpha(palette.windowText, 0.07)

    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: 14
        anchors.rightMargin: 10
        spacing: 8

        Symbol {
            Layout.preferredWidth: 16
            Layout.preferredHeight: 16
            name: "rectangle.on.rectangle"
            color: root.palette.windowText
        }
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 4

            Label {
                Layout.fillWidth: true
                text: root.text
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                font.pixelSize: 12
            }
            Label {
                Layout.fillWidth: true
                visible: text !== ""
                text: root.fileText
                textFormat: Text.PlainText
                wrapMode: Text.Wrap
                font.pixelSize: 12
                font.weight: Font.DemiBold
                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
            }
        }
        Button {
            visible: root.action !== ""
            text: root.action
            Accessible.name: text
            ToolTip.visible: (hovered || visualFocus) && root.filePath !== ""
            ToolTip.delay: 500
            ToolTip.text: root.filePath
            onClicked: root.updateRequested()
        }
    }
}
