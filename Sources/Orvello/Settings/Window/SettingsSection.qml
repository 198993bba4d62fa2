import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// A header and, below it, a card of rows.
ColumnLayout {
    id: root

    required property string title
    default property alias rows: content.data

    readonly property bool isDark: palette.window.hslLightness < 0.5

    Layout.fillWidth: true
    spacing: 6
    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Label {
        Layout.leftMargin: 2
        text: root.title
        font.bold: true
        Accessible.role: Accessible.Heading
    }

    Rectangle {
        Layout.fillWidth: true
        implicitHeight: content.implicitHeight
        radius: 8
        color: root.isDark ? Qt.lighter(root.palette.window, 1.25) : root.palette.base
        border.color: Qt.alpha(root.palette.windowText, 0.14)

        ColumnLayout {
            id: content

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.leftMargin: 14
            anchors.rightMargin: 14
            spacing: 0
        }
    }
}
