pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Orvello

// The list of scripts, and the buttons that change it.
ColumnLayout {
    id: root

    required property LibraryViewModel library
    readonly property ScriptSearch scripts: library.scripts
    readonly property int pageOfRows: Math.max(1, Math.floor(list.height / 30) - 1) // A row is about 30 points high.

    signal addRequested
    signal editRequested

    function search(): void {
        searchField.forceActiveFocus(Qt.ShortcutFocusReason);
        searchField.selectAll();
    }

    function runCommand(event: KeyEvent): bool {
        const hasControl = event.modifiers === Qt.ControlModifier;
        if (hasControl && event.key === Qt.Key_F) {
            root.search();
            return true;
        }
        const command = event.key === Qt.Key_Delete ? root.library.removeActive
                      : hasControl && event.key === Qt.Key_Z ? () => root.library.deleted.restore(0)
                      : hasControl && event.key === Qt.Key_D ? root.library.duplicateActive
                      : null;
        if (command && singlePress.admits(event))
            command();
        return command !== null;
    }

    SinglePress {
        id: singlePress
    }

    spacing: 0

    TextField {
        id: searchField

        Layout.fillWidth: true
        Layout.margins: 6
        placeholderText: qsTr("Search")
        text: root.scripts.text
        selectByMouse: true
        onTextEdited: root.scripts.text = text
        onAccepted: list.forceActiveFocus(Qt.TabFocusReason)
        Keys.onDownPressed: list.forceActiveFocus(Qt.TabFocusReason)
        Keys.onEscapePressed: {
            root.scripts.text = "";
            list.forceActiveFocus(Qt.TabFocusReason);
        }

        Accessible.name: qsTr("Search titles and texts")
    }

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

            function step(event: KeyEvent, rows: int): void {
                if (event.modifiers & Qt.AltModifier)
                    root.scripts.move(root.scripts.activeRow, root.scripts.activeRow + rows);
                else
                    root.scripts.activate(root.scripts.activeRow + rows);
            }

            Keys.onUpPressed: event => step(event, -1)
            Keys.onDownPressed: event => step(event, 1)
            Keys.onReturnPressed: root.editRequested()
            Keys.onEnterPressed: root.editRequested()
            onActiveFocusChanged: singlePress.reset()
            Keys.onReleased: singlePress.keyReleased()
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
                case Qt.Key_F2:
                    root.editRequested();
                    break;
                default:
                    if (!root.runCommand(event))
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
                onMenuRequested: {
                    root.scripts.activate(index);
                    menu.popup();
                }
                onDragged: y => list.dropRow = list.indexAt(1, y)
                onDropped: {
                    const row = list.dropRow;
                    list.dropRow = -1;
                    if (row >= 0)
                        root.scripts.move(index, row);
                }
            }

            property int dropRow: -1 // Where a row that is being dragged would go.

            Rectangle {
                parent: list.contentItem
                z: 1
                visible: list.dropRow >= 0 && root.scripts.text === ""
                x: 8
                y: list.itemAtIndex(list.dropRow)?.y ?? 0
                width: list.width - 16
                height: list.itemAtIndex(list.dropRow)?.height ?? 0
                radius: 5
                color: "transparent"
                border.color: root.palette.highlight
                border.width: 2
            }

            Label {
                parent: list
                width: list.width - 32
                x: 16
                y: 12
                visible: list.count === 0 && root.scripts.text !== ""
                //: Where the list of scripts is, when none has what is searched for.
                text: qsTr("Nothing found")
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
                opacity: 0.7

                Accessible.role: Accessible.AlertMessage
                Accessible.name: text
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
        DeletedScripts {
            Layout.rightMargin: 4
            deleted: root.library.deleted
        }
    }

    ContextMenu {
        id: menu

        palette: root.palette // Popups do not inherit the window's.

        MenuItem {
            text: qsTr("Rename")
            onTriggered: root.editRequested()
        }
        MenuItem {
            text: qsTr("Duplicate")
            onTriggered: root.library.duplicateActive()
        }
        MenuItem {
            text: qsTr("Export…")
            onTriggered: root.library.exportActive()
        }
        MenuItem {
            //: All scripts of the list, into one file.
            text: qsTr("Export All…")
            onTriggered: root.library.exportListed()
        }
        MenuItem {
            text: qsTr("Move Up")
            enabled: root.scripts.text === "" && root.scripts.activeRow > 0
            onTriggered: root.scripts.move(root.scripts.activeRow, root.scripts.activeRow - 1)
        }
        MenuItem {
            text: qsTr("Move Down")
            enabled: root.scripts.text === "" && root.scripts.activeRow < list.count - 1
            onTriggered: root.scripts.move(root.scripts.activeRow, root.scripts.activeRow + 1)
        }
        MenuItem {
            text: qsTr("Delete")
            onTriggered: root.library.removeActive()
        }
    }
}
