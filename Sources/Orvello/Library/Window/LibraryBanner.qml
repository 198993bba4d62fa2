import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// A line above the scripts and the editor that says what is wrong with the files, with up to two buttons.
Rectangle {
    id: root

    required property string text
    property string action
    property string dismissal

    signal actionTriggered
    signal dismissed

    implicitHeight: row.implicitHeight + 16
    // Amber on light and on dark windows alike, with the window's text on it.
    color: Qt.tint(palette.window, Qt.rgba(1, 0.62, 0.04, 0.28))

    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    RowLayout {
        id: row

        anchors.fill: parent
        anchors.leftMargin: 14
        anchors.rightMargin: 10
        spacing: 8

        Label {
            Layout.fillWidth: true
            text: root.text
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font.pixelSize: 12
        }
        Button {
            visible: root.action !== ""
            text: root.action
            highlighted: true
            onClicked: root.actionTriggered()
        }
        Button {
            visible: root.dismissal !== ""
            text: root.dismissal
            onClicked: root.dismissed()
        }
    }
}
