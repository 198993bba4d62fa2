pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Orvello

// The button that drops down the recently deleted scripts. There is none while there are none.
ToolbarButton {
    id: root

    required property DeletedScriptsModel deleted

    visible: deleted.count > 0
    symbol: "trash"
    help: qsTr("Recently deleted")
    ToolTip.visible: (hovered || visualFocus) && !popup.visible
    onClicked: popup.open()

    Popup {
        id: popup

        y: -height
        width: 320
        height: Math.min(list.contentHeight + 60, 320)
        palette: root.palette // Popups do not inherit the window's.
        modal: true
        padding: 1
        // On a dark editor the style's own edge is invisible.
        background: Rectangle {
            color: root.palette.base
            border.color: Qt.alpha(root.palette.windowText, 0.3)
        }
        onOpened: list.forceActiveFocus(Qt.PopupFocusReason)

        ColumnLayout {
            anchors.fill: parent
            spacing: 0

            Label {
                Layout.fillWidth: true
                Layout.margins: 12
                text: qsTr("Deleted scripts are kept for 30 days.")
                wrapMode: Text.Wrap
                font.pixelSize: 11
            }
            ListView {
                id: list

                Layout.fillWidth: true
                Layout.fillHeight: true
                clip: true
                model: root.deleted
                boundsBehavior: Flickable.StopAtBounds
                ScrollBar.vertical: ScrollBar {}
                onCountChanged: if (count === 0)
                    popup.close()

                delegate: RowLayout {
                    id: row

                    required property int index
                    required property string title
                    required property string deleted

                    width: list.width
                    height: 44
                    spacing: 8

                    ColumnLayout {
                        Layout.leftMargin: 12
                        spacing: 0

                        Label {
                            Layout.fillWidth: true
                            text: row.title
                            textFormat: Text.PlainText
                            elide: Text.ElideRight
                        }
                        Label {
                            Layout.fillWidth: true
                            text: row.deleted
                            elide: Text.ElideRight
                            font.pixelSize: 11
                        }
                    }
                    Button {
                        Layout.rightMargin: 12
                        text: qsTr("Restore")
                        Accessible.name: qsTr("Restore “%1”").arg(row.title)
                        onClicked: root.deleted.restore(row.index)
                    }
                }
            }
        }
    }
}
