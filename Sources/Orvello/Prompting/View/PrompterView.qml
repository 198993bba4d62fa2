pragma ComponentBehavior: Bound
import QtQuick
import Orvello

// The dark card with the script, moved up by the scroll engine, and the small status elements at
// its edges.
Item {
    id: root

    required property ScrollEngine engine
    required property SettingsStore settings
    required property PromptLines lines
    required property PrompterStatus status
    required property LevelMeter levelMeter
    required property ReadingClock clock
    required property VoiceActivityEngine voice
    required property SlideStatus slideStatus
    required property OtherDeckNotice otherDeckNotice
    required property ShareWarning shareWarning
    required property string fontFamily
    required property bool forceCapturable

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Prompter")
    Accessible.description: status.label

    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Binding { target: root.engine; property: "hoverPaused"; value: hover.hovered }

    HoverHandler {
        id: hover
    }

    RoundedBox {
        anchors.fill: parent
        radius: CardStyle.cornerRadius
        color: Qt.rgba(0, 0, 0, root.settings.backgroundOpacity)
        lineColor: CardStyle.hairLine
    }

    PromptText {
        anchors.fill: parent
        engine: root.engine
        lines: root.lines
        color: root.settings.textColor
        cardOpacity: root.settings.backgroundOpacity

        Accessible.role: Accessible.StaticText
        Accessible.name: root.lines.text
    }

    Countdown {
        anchors.fill: parent
        visible: root.engine.isCountingDown
        number: root.engine.countdownText
        fontFamily: root.fontFamily
    }

    ShareNotice {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: statusBadge.top
        anchors.margins: CardStyle.edge
        warning: root.shareWarning
        isVisibleInRecordings: root.status.isVisibleInRecordings
        visible: root.shareWarning.isShown && !root.otherDeckNotice.isShown // A small card has room for one.
    }

    OtherDeck {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: statusBadge.top
        anchors.margins: CardStyle.edge
        notice: root.otherDeckNotice
    }

    StatusBadge {
        id: statusBadge
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        anchors.margins: CardStyle.edge
        status: root.status
        meter: root.levelMeter
        clock: root.clock
        voice: root.voice
    }

    VoiceHint {
        anchors.left: parent.left
        anchors.bottom: statusBadge.top
        anchors.margins: CardStyle.edge
        visible: statusBadge.isPointedAt && voice.status !== ""
        maximumWidth: parent.width - 2 * CardStyle.edge
        voice: root.voice
    }

    RecordingBadge {
        id: recordingBadge
        anchors.left: statusBadge.right
        anchors.bottom: parent.bottom
        anchors.margins: CardStyle.edge
        visible: root.forceCapturable || root.status.isVisibleInRecordings
        maximumWidth: parent.width - statusBadge.width - 3 * CardStyle.edge
                      - (slideChip.visible ? slideChip.widthWithoutTitle + CardStyle.edge : 0)
        isFolded: root.settings.recordingBadgeFolded
        //: On the card, at most about 40 characters: others can see the prompter.
        message: root.forceCapturable ? qsTr("DEBUG — VISIBLE IN RECORDINGS") : qsTr("VISIBLE IN RECORDINGS")
        onPressed: root.settings.recordingBadgeFolded = !root.settings.recordingBadgeFolded
    }

    SlideChip {
        id: slideChip
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: CardStyle.edge
        maximumWidth: parent.width - statusBadge.width - 3 * CardStyle.edge
                      - (recordingBadge.visible ? recordingBadge.width + CardStyle.edge : 0)
        visible: root.slideStatus.isShown
        status: root.slideStatus
    }
}
