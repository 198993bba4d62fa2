import QtQuick
import Orvello

// Says that others can see the prompter, so plainly that nobody takes it for hidden. The user can
// fold it to an eye, and it folds itself where there is no room for its words.
RoundedBox {
    id: root

    required property string message
    required property bool isFolded
    required property double maximumWidth

    signal pressed()

    readonly property bool hasRoom: eye.width + label.implicitWidth + 3 * padding <= maximumWidth
    readonly property bool isEye: isFolded || !hasRoom
    readonly property int padding: 5

    Accessible.role: Accessible.AlertMessage
    Accessible.name: message

    implicitWidth: isEye ? eye.width + 2 * padding : eye.width + label.implicitWidth + 3 * padding
    implicitHeight: CardStyle.capsuleHeight
    radius: 4
    color: CardStyle.red

    Symbol {
        id: eye
        anchors.left: parent.left
        anchors.leftMargin: root.padding
        anchors.verticalCenter: parent.verticalCenter
        width: 12
        height: 12
        name: "eye"
        color: CardStyle.text
    }

    Text {
        id: label
        Accessible.ignored: true
        anchors.left: eye.right
        anchors.leftMargin: root.padding
        anchors.verticalCenter: parent.verticalCenter
        visible: !root.isEye
        text: root.message
        textFormat: Text.PlainText
        renderType: Text.NativeRendering
        color: CardStyle.text
        font.pixelSize: CardStyle.labelSize
        font.weight: Font.Bold
    }

    // Takes the press even where nothing can unfold, so that a click never drags the panel away.
    MouseArea {
        anchors.fill: parent
        onClicked: {
            if (root.hasRoom)
                root.pressed();
        }
    }

    AccessibleButton {
        anchors.fill: parent
        enabled: root.hasRoom
        //: Read aloud: the button makes the words "VISIBLE IN RECORDINGS" on the card a small eye, or words again.
        name: root.isEye ? qsTr("Show the badge in full") : qsTr("Fold the badge to an eye")
        onPressed: root.pressed()

        Accessible.role: Accessible.Button
    }
}
