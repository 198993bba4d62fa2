import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// A label on the left and its control on the right, separated from the row above by a line. A click
// on the label counts as one on the row.
Item {
    id: root

    required property string label
    property real labelShare: 0.5 // The most of the row's width that the label may take.
    default property alias control: line.data

    signal clicked

    Layout.fillWidth: true
    implicitHeight: Math.max(42, line.implicitHeight + 18)

    Rectangle {
        visible: root.y > 0
        width: root.width
        height: 1
        color: Qt.alpha(root.palette.windowText, 0.1)
    }

    TapHandler {
        onTapped: root.clicked()
    }

    RowLayout {
        id: line

        anchors.fill: parent
        spacing: 14

        Label {
            Layout.preferredWidth: root.labelShare * root.width
            Layout.fillWidth: true
            text: root.label
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            Accessible.ignored: true // The control has it as its name.
        }
    }
}
