import QtQuick
import QtQuick.Layouts

// A key, as on a keyboard, and what it does.
RowLayout {
    id: root

    required property string keys
    required property string label

    Layout.fillWidth: true
    spacing: 12
    Accessible.role: Accessible.StaticText
    //: Read aloud. %1: keys; %2: what they do.
    Accessible.name: qsTr("%1: %2").arg(keys).arg(label)

    Rectangle {
        Layout.preferredWidth: Math.max(120, words.implicitWidth + 16)
        Layout.maximumWidth: 200
        implicitHeight: Math.max(26, words.implicitHeight + 8)
        radius: 6
        color: Qt.rgba(1, 1, 1, 0.09)
        border.color: Qt.rgba(1, 1, 1, 0.12)

        TourText {
            id: words

            anchors.centerIn: parent
            width: Math.min(implicitWidth, parent.width - 12)
            text: root.keys
            horizontalAlignment: Text.AlignHCenter
            color: TourStyle.text
            font.pixelSize: 12
            font.weight: Font.Medium
            lineHeight: 1
            Accessible.ignored: true
        }
    }
    TourText {
        Layout.fillWidth: true
        text: root.label
        lineHeight: 1
        Accessible.ignored: true
    }
}
