import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Orvello

// How an import ended, when that is not what the user hoped for.
Dialog {
    id: root

    required property DeckImports imports

    anchors.centerIn: parent
    palette: parent.palette // Popups do not inherit the window's.
    width: 360
    modal: true
    visible: imports.isShowingAlert
    closePolicy: Popup.CloseOnEscape
    padding: 20
    // On a dark window the style's own edge is invisible.
    background: Rectangle {
        color: root.palette.window
        border.color: Qt.alpha(root.palette.windowText, 0.3)
    }
    onClosed: imports.dismissAlert()
    onOpened: button.forceActiveFocus(Qt.PopupFocusReason)

    ColumnLayout {
        // A popup does not inherit it.
        LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
        LayoutMirroring.childrenInherit: true
        anchors.fill: parent
        spacing: 8

        Accessible.role: Accessible.AlertMessage
        Accessible.name: root.imports.alertTitle
        Accessible.description: root.imports.alertText

        Label {
            Layout.fillWidth: true
            text: root.imports.alertTitle
            font.weight: Font.Bold
            wrapMode: Text.Wrap
        }
        Label {
            Layout.fillWidth: true
            text: root.imports.alertText
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
        }
        Button {
            id: button

            Layout.alignment: Qt.AlignRight
            Layout.topMargin: 8
            text: qsTr("OK")
            highlighted: true
            onClicked: root.close()
            Keys.onReturnPressed: root.close()
            Keys.onEnterPressed: root.close()
        }
    }
}
