import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Orvello

// Asks what to do with a file whose notes are in the library already.
Dialog {
    id: root

    required property DeckImports imports

    anchors.centerIn: parent
    palette: parent.palette // Popups do not inherit the window's.
    width: 420
    modal: true
    visible: imports.question !== "" && !imports.isShowingAlert
    closePolicy: Popup.NoAutoClose // Each question is answered by a key of its own.
    padding: 20
    // On a dark window the style's own edge is invisible.
    background: Rectangle {
        color: root.palette.window
        border.color: Qt.alpha(root.palette.windowText, 0.3)
    }
    onOpened: update.forceActiveFocus(Qt.PopupFocusReason)

    ColumnLayout {
        // A popup does not inherit it.
        LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
        LayoutMirroring.childrenInherit: true
        anchors.fill: parent
        spacing: 16

        Accessible.role: Accessible.AlertMessage
        Accessible.name: root.imports.question
        Keys.onEscapePressed: root.imports.dismissQuestion()

        Label {
            Layout.fillWidth: true
            text: root.imports.question
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
        }
        Flow {
            Layout.fillWidth: true
            layoutDirection: Qt.RightToLeft
            spacing: 8

            AnswerButton {
                id: update

                //: A button: the notes are taken from their presentation's file once more.
                text: qsTr("Update")
                highlighted: true
                onAnswered: root.imports.updateKnown()
            }
            AnswerButton {
                //: A button: the notes of a presentation are added as one more script.
                text: qsTr("Add Once More")
                onAnswered: root.imports.addOnceMore()
            }
            AnswerButton {
                text: qsTr("Cancel")
                onAnswered: root.imports.dismissQuestion()
            }
        }
    }

    component AnswerButton: Button {
        signal answered

        Accessible.name: text
        onClicked: answered()
        Keys.onReturnPressed: answered()
        Keys.onEnterPressed: answered()
    }
}
