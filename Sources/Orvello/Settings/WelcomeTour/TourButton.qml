import QtQuick
import QtQuick.Templates as T

// A button of the welcome tour: the one that leads to the next page stands out, the others do not.
T.Button {
    id: root

    property bool leadsOn: false

    implicitWidth: Math.max(leadsOn ? 104 : 0, implicitContentWidth + 32)
    implicitHeight: 36
    opacity: enabled ? 1 : 0.4
    hoverEnabled: true
    Accessible.name: text

    contentItem: Text {
        text: root.text
        textFormat: Text.PlainText
        color: root.leadsOn ? "white" : root.hovered ? TourStyle.text : TourStyle.secondaryText
        font.pixelSize: 14
        font.weight: root.leadsOn ? Font.DemiBold : Font.Normal
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }

    background: Rectangle {
        radius: height / 2
        color: root.leadsOn ? (root.down ? Qt.darker(TourStyle.button, 1.2) : root.hovered ? Qt.lighter(TourStyle.button, 1.08) : TourStyle.button)
                            : Qt.rgba(1, 1, 1, root.down ? 0.14 : root.hovered ? 0.08 : 0)

        Rectangle {
            visible: root.visualFocus
            anchors.fill: parent
            anchors.margins: -4
            radius: height / 2
            color: "transparent"
            border.width: 2
            border.color: TourStyle.accent
        }
    }
}
