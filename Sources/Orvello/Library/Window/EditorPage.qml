import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Orvello

// One open script: title, body, what is to be said about them. Each script has its own, so that
// undo history, cursor and scroll position belong to the script.
Pane {
    id: root

    required property ScriptEditor editor
    required property facts facts
    required property DeckFileBar deckFile
    property bool isActive: false
    property bool isLoaded: false
    property alias cursorPosition: body.cursorPosition

    signal startRequested

    // Only once the page has its width: laying out a megabyte twice takes twice as long.
    function load(): void {
        if (isLoaded || !isActive || body.width <= 0)
            return;
        isLoaded = true;
        body.text = editor.bodyInField;
        editor.follow(body.textDocument);
    }

    function editTitle(): void {
        title.forceActiveFocus(Qt.OtherFocusReason);
        title.selectAll();
    }

    onIsActiveChanged: load()
    Component.onCompleted: load()

    padding: 0
    background: Rectangle {
        color: root.palette.base
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        TextField {
            id: title

            Layout.fillWidth: true
            leftPadding: 14
            rightPadding: 14
            topPadding: 12
            bottomPadding: 10
            background: null
            font.pixelSize: 18
            font.weight: Font.DemiBold
            placeholderText: qsTr("Title")
            text: root.editor.title
            readOnly: root.isActive && !root.editor.isEditable
            selectByMouse: true
            maximumLength: 0x7fffffff // However long a title is, an edit cuts nothing off.
            autoScroll: activeFocus // A title that is not being edited shows its beginning.
            onTextEdited: root.editor.title = text
            onAccepted: body.forceActiveFocus(Qt.TabFocusReason)

            Accessible.name: qsTr("Title")
        }

        Divider {
            Layout.fillWidth: true
        }

        DeckNotice {
            Layout.fillWidth: true
            visible: root.editor.isDeck
            text: root.editor.deckNotice
            fileText: root.isActive ? root.deckFile.text : ""
            filePath: root.deckFile.path
            action: root.deckFile.action
            onUpdateRequested: root.deckFile.update()
        }

        ScrollView {
            implicitWidth: 1 // Whatever width the text asks for, it gets the rest of the page.
            implicitHeight: 1
            Layout.fillWidth: true
            Layout.fillHeight: true

            TextArea {
                id: body

                leftPadding: 14
                rightPadding: 14
                topPadding: 10
                bottomPadding: 10
                background: null
                font.pixelSize: 14
                textFormat: TextEdit.PlainText
                wrapMode: TextEdit.Wrap
                // Out of sight it stays as it was, because a change takes the cursor to the end.
                readOnly: root.editor.isDeck || root.isActive && !root.editor.isEditable
                selectByMouse: true
                selectByKeyboard: true
                persistentSelection: true

                Accessible.name: root.editor.isDeck ? qsTr("Speaker notes") : qsTr("Script text")

                onWidthChanged: root.load()

                TapHandler {
                    acceptedButtons: Qt.RightButton
                    onTapped: eventPoint => {
                        const clicked = body.positionAt(eventPoint.position.x, eventPoint.position.y);
                        if (clicked < body.selectionStart || clicked > body.selectionEnd || body.selectedText === "")
                            body.cursorPosition = clicked;
                        menu.popup();
                    }
                }

                ContextMenu {
                    id: menu

                    property bool canPaste: false // The field's own value changes while it is read.

                    palette: root.palette // Popups do not inherit the window's.
                    onAboutToShow: canPaste = body.canPaste && !body.readOnly

                    MenuItem {
                        //: The prompter begins with the line that the cursor is on.
                        text: qsTr("Start Here")
                        onTriggered: root.startRequested()
                    }
                    MenuSeparator {}
                    MenuItem {
                        text: qsTr("Cut")
                        enabled: body.selectedText !== "" && !body.readOnly
                        onTriggered: body.cut()
                    }
                    MenuItem {
                        text: qsTr("Copy")
                        enabled: body.selectedText !== ""
                        onTriggered: body.copy()
                    }
                    MenuItem {
                        text: qsTr("Paste")
                        enabled: menu.canPaste
                        onTriggered: body.paste()
                    }
                    MenuItem {
                        text: qsTr("Select All")
                        onTriggered: body.selectAll()
                    }
                }
            }
        }

        Divider {
            Layout.fillWidth: true
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.minimumHeight: 34
            Layout.leftMargin: 14
            Layout.rightMargin: 14
            spacing: 16

            Label {
                text: root.editor.lengthText
                font.pixelSize: 11
            }
            Label {
                Layout.fillWidth: true
                horizontalAlignment: Text.AlignRight
                wrapMode: Text.Wrap
                text: root.facts.isMac ? qsTr("Shown in the prompter · autosaved locally, nothing leaves your Mac")
                                       : qsTr("Shown in the prompter · autosaved locally, nothing leaves your computer")
                font.pixelSize: 11
            }
        }
    }
}
