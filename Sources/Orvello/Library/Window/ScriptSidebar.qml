pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Orvello

// The list of scripts, and the buttons that change it.
ColumnLayout {
    id: root

    required property LibraryViewModel library
    readonly property ScriptListModel scripts: library.scripts
    readonly property int pageOfRows: Math.max(1, Math.floor(list.height / 30) - 1) // A row is about 30 points high.

    signal addRequested
    signal editRequested

    spacing: 0

    ScrollView {
        id: scroll

        focus: true
        Layout.fillWidth: true
        Layout.fillHeight: true
        ScrollBar.horizontal.policy: ScrollBar.AlwaysOff

        ListView {
            id: list

            activeFocusOnTab: true
            focus: true
            clip: true
            reuseItems: true
            keyNavigationEnabled: false // The active script is the library's, not the view's.
            boundsBehavior: Flickable.StopAtBounds
            topMargin: 6
            bottomMargin: 6
            model: root.scripts

            Accessible.role: Accessible.List
            Accessible.name: qsTr("Scripts")

            Keys.onUpPressed: root.scripts.activate(root.scripts.activeRow - 1)
            Keys.onDownPressed: root.scripts.activate(root.scripts.activeRow + 1)
            Keys.onDeletePressed: root.library.removeActive()
            Keys.onReturnPressed: root.editRequested()
            Keys.onEnterPressed: root.editRequested()
            Keys.onPressed: event => {
                switch (event.key) {
                case Qt.Key_Home:
                    root.scripts.activate(0);
                    break;
                case Qt.Key_End:
                    root.scripts.activate(list.count - 1);
                    break;
                case Qt.Key_PageUp:
                    root.scripts.activate(root.scripts.activeRow - root.pageOfRows);
                    break;
                case Qt.Key_PageDown:
                    root.scripts.activate(root.scripts.activeRow + root.pageOfRows);
                    break;
                case Qt.Key_Backspace:
                    root.library.removeActive();
                    break;
                case Qt.Key_F2:
                    root.editRequested();
                    break;
                default:
                    return;
                }
                event.accepted = true;
            }

            delegate: ScriptRow {
                width: list.width
                isActive: index === root.scripts.activeRow
                listHasFocus: list.activeFocus
                onClicked: {
                    list.forceActiveFocus(Qt.MouseFocusReason);
                    root.scripts.activate(index);
                }
                onDoubleClicked: root.editRequested()
            }

            // The current item is what assistive technology reads out. A view moves it along with
            // insertions and removals, which the library does not ask for.
            function followActiveRow(): void {
                currentIndex = root.scripts.activeRow;
            }

            highlightFollowsCurrentItem: true
            highlightMoveDuration: 0
            onCountChanged: followActiveRow()
            Component.onCompleted: followActiveRow()

            Connections {
                target: root.scripts
                function onActiveRowChanged() {
                    list.followActiveRow();
                }
            }
        }
    }

    RowLayout {
        visible: root.library.imports.readingText !== ""
        Layout.fillWidth: true
        Layout.margins: 8
        spacing: 8

        Label {
            Layout.fillWidth: true
            text: root.library.imports.readingText
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            Accessible.role: Accessible.AlertMessage
            Accessible.name: text
        }
        Button {
            text: qsTr("Cancel")
            Accessible.name: text
            onClicked: root.library.imports.cancelReading()
        }
    }

    Divider {
        Layout.fillWidth: true
    }

    RowLayout {
        Layout.fillWidth: true
        Layout.minimumHeight: 34
        Layout.leftMargin: 4
        spacing: 2

        ToolbarButton {
            symbol: "plus"
            help: qsTr("New script")
            onClicked: root.addRequested()
        }
        ToolbarButton {
            symbol: "minus"
            help: qsTr("Delete")
            onClicked: root.library.removeActive()
        }
        ImportMenu {
            imports: root.library.imports
        }
        Item {
            Layout.fillWidth: true
        }
    }
}
