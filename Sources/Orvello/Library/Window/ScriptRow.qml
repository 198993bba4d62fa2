import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Orvello

// One script in the list: its title, and for a deck its symbol and the number of slides.
ItemDelegate {
    id: root

    required property int index
    required property string title
    required property bool isDeck
    required property string slides
    required property bool isActive
    required property bool listHasFocus
    readonly property color textColor: isActive && listHasFocus ? palette.highlightedText : palette.windowText

    signal menuRequested
    signal dragged(y: real) // In the list's content.
    signal dropped

    focusPolicy: Qt.NoFocus // The list has the focus.
    highlighted: isActive
    topPadding: 5
    bottomPadding: 5
    leftPadding: 16
    rightPadding: 16

    Accessible.role: Accessible.ListItem
    //: Read aloud. %2: a script's title, which goes in last, as it may hold a "%1"; %1: how many slides, as in "4 slides".
    Accessible.name: isDeck ? qsTr("%2, %1").arg(slides).arg(title) : title
    Accessible.selectable: true
    Accessible.selected: isActive

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: root.menuRequested()
    }
    DragHandler {
        target: null
        xAxis.enabled: false
        // The list would scroll under the pointer instead.
        grabPermissions: PointerHandler.CanTakeOverFromAnything
        onCentroidChanged: if (active)
            root.dragged(root.y + centroid.position.y)
        onActiveChanged: if (!active)
            root.dropped()
    }

    background: Item {
        Rectangle {
            anchors.fill: parent
            anchors.leftMargin: 6
            anchors.rightMargin: 6
            radius: 5
            visible: root.isActive
            color: root.listHasFocus ? root.palette.highlight : Qt.alpha(root.palette.windowText, 0.14)
        }
    }

    contentItem: RowLayout {
        spacing: 6

        Symbol {
            Layout.preferredWidth: 14
            Layout.preferredHeight: 14
            visible: root.isDeck
            name: "rectangle.on.rectangle"
            color: root.textColor
        }

        ColumnLayout {
            spacing: 0

            ScriptTitle {
                Layout.fillWidth: true
                text: root.title
                isHovered: root.hovered
                color: root.textColor
            }
            Label {
                Layout.fillWidth: true
                visible: root.isDeck
                text: root.slides
                elide: Text.ElideRight
                font.pixelSize: 11
                color: root.textColor
            }
        }
    }
}
