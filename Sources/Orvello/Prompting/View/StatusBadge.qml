import QtQuick
import Orvello

// What the prompter is doing, and how loud it hears the speaker.
Capsule {
    id: root

    required property PrompterStatus status
    required property LevelMeter meter
    required property ReadingClock clock
    required property VoiceActivityEngine voice

    readonly property bool isPointedAt: hover.hovered

    Accessible.role: Accessible.StaticText
    Accessible.name: status.label
    Accessible.description: voice.status === "" ? qsTr("Status") : qsTr("Status") + "\n" + voice.status

    HoverHandler {
        id: hover
    }

    RoundedBox {
        anchors.verticalCenter: parent.verticalCenter
        width: 8
        height: 8
        radius: 4
        color: root.status.color
    }

    LabelStack {
        anchors.verticalCenter: parent.verticalCenter
        labels: root.status.labels
        label: root.status.label
    }

    LevelBeam {
        anchors.verticalCenter: parent.verticalCenter
        meter: root.meter
    }

    SmallLabel {
        anchors.verticalCenter: parent.verticalCenter
        visible: text !== ""
        text: root.clock.text
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        Accessible.description: qsTr("Reading time")
    }
}
