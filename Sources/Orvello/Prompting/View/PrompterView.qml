pragma ComponentBehavior: Bound
import QtQuick
import Orvello

// The dark card with the script, moved up by the scroll engine, and the small status elements at
// its edges. It tells the engine the two heights and the hovering that the engine cannot know.
Item {
    id: root

    required property ScrollEngine engine
    required property SettingsStore settings
    required property PromptLines lines
    required property PrompterStatus status
    required property LevelMeter levelMeter
    required property SlideStatus slideStatus
    required property ShareWarning shareWarning
    required property string promptText
    required property string fontFamily
    required property bool forceCapturable
    property bool visibleInRecordings: false // Stealth Mode is wanted where nothing can hide the panel.

    readonly property double textWidth: Math.max(width - 56, 100)
    readonly property int edge: 6

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Prompter")
    Accessible.description: status.label

    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    onHeightChanged: engine.setViewportHeight(height)
    Component.onCompleted: {
        engine.setViewportHeight(height);
        engine.setContentHeight(lines.contentHeight);
    }

    Connections {
        target: root.lines
        function onContentHeightChanged() {
            root.engine.setContentHeight(root.lines.contentHeight);
        }
    }

    Binding { target: root.lines; property: "fontFamily"; value: root.fontFamily }
    Binding { target: root.lines; property: "fontSize"; value: root.settings.fontSize }
    Binding { target: root.lines; property: "textWidth"; value: root.textWidth }
    Binding { target: root.lines; property: "text"; value: root.promptText }
    Binding { target: root.engine; property: "hoverPaused"; value: hover.hovered }

    HoverHandler {
        id: hover
    }

    Card {
        anchors.fill: parent
        color: Qt.rgba(0, 0, 0, root.settings.backgroundOpacity)
    }

    PromptText {
        anchors.fill: parent
        engine: root.engine
        lines: root.lines
        color: root.settings.textColor

        Accessible.role: Accessible.StaticText
        Accessible.name: root.promptText
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
        anchors.margins: root.edge
        warning: root.shareWarning
    }

    StatusBadge {
        id: statusBadge
        anchors.left: parent.left
        anchors.bottom: parent.bottom
        anchors.margins: root.edge
        status: root.status
        meter: root.levelMeter
    }

    SlideChip {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: root.edge
        maximumWidth: parent.width - statusBadge.width - 3 * root.edge
        visible: root.slideStatus.isShown
        status: root.slideStatus
    }

    RecordingBadge {
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: root.edge
        visible: root.forceCapturable || root.visibleInRecordings
        //: On the card, at most about 40 characters: others can see the prompter.
        message: root.forceCapturable ? qsTr("DEBUG — VISIBLE IN RECORDINGS") : qsTr("VISIBLE IN RECORDINGS")
    }
}
