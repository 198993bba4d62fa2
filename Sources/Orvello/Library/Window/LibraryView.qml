pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Orvello

// The scripts where reading begins, and beside them the active one with its editor.
Pane {
    id: root

    required property LibraryViewModel library

    function addScript(): void {
        library.addScript();
        activePage()?.editTitle();
    }

    function startHere(): void {
        library.startHere(activePage()?.cursorPosition ?? 0);
    }

    function activePage(): EditorPage {
        for (let i = 0; i < pages.count; ++i) {
            const page = pages.itemAt(i) as EditorPage;
            if (page?.isActive)
                return page;
        }
        return null;
    }

    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    padding: 0
    focus: true

    Shortcut {
        sequences: ["Ctrl+N"]
        onActivated: root.addScript()
    }
    Shortcut {
        sequences: ["Ctrl+O"]
        onActivated: root.library.imports.chooseFile()
    }
    Shortcut {
        sequences: ["Ctrl+R"]
        onActivated: root.library.deckFile.update()
    }
    Shortcut {
        sequences: ["Ctrl+Return", "Ctrl+Enter"]
        onActivated: root.startHere()
    }
    Shortcut {
        sequences: ["Ctrl+E"]
        onActivated: root.library.exportActive()
    }
    Shortcut {
        sequences: ["Ctrl+Shift+E"]
        onActivated: root.library.exportListed()
    }
    Shortcut {
        sequences: ["Ctrl+W"]
        onActivated: root.Window.window.close()
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        LibraryBanner {
            Layout.fillWidth: true
            visible: text !== ""
            text: root.library.notices.saveText
        }
        LibraryBanner {
            Layout.fillWidth: true
            visible: text !== ""
            text: root.library.notices.rescueText
            action: root.library.notices.offerText
            dismissal: qsTr("Dismiss")
            onActionTriggered: root.library.notices.takeCopy()
            onDismissed: root.library.notices.closeRescue()
        }

        SplitView {
            id: split

            // It does not mirror by itself.
            Component.onCompleted: if (root.mirrored)
                moveItem(0, 1)

            Layout.fillWidth: true
            Layout.fillHeight: true

            ScriptSidebar {
                SplitView.minimumWidth: 180
                SplitView.preferredWidth: 210
                // What the editor can spare: the window may be narrower than both at their widest.
                SplitView.maximumWidth: Math.max(180, Math.min(280, split.width - 410))
                library: root.library
                onAddRequested: root.addScript()
                onEditRequested: root.activePage()?.editTitle()
            }

            Item {
                SplitView.minimumWidth: 400
                SplitView.fillWidth: true

                Repeater {
                    id: pages

                    model: root.library.openScripts
                    delegate: EditorPage {
                        facts: root.library.facts
                        deckFile: root.library.deckFile
                        isActive: editor === root.library.openScripts.active
                        onStartRequested: root.startHere()
                        visible: isActive
                        // A long text out of sight is not worth laying out again at each size of the
                        // window.
                        anchors.fill: isActive ? parent : undefined
                    }
                }
            }
        }
    }

    Rectangle {
        anchors.fill: parent
        visible: drop.containsDrag
        color: "transparent"
        border.color: root.palette.highlight
        border.width: 3
    }

    DropArea {
        id: drop

        anchors.fill: parent
        onEntered: drag => drag.accepted = root.library.imports.canTake(drag.urls)
        onDropped: drop => {
            drop.accept(Qt.CopyAction);
            root.library.imports.importFiles(drop.urls);
        }
    }

    LibraryAlert {
        imports: root.library.imports
    }

    UpdateQuestion {
        imports: root.library.imports
    }
}
