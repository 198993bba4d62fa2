import QtQuick

// Copies, and says for a moment that it has.
TourIconButton {
    id: root

    property bool hasCopied: false

    symbol: hasCopied ? "checkmark" : "doc.on.doc"
    symbolSize: 15
    symbolColor: hasCopied ? TourStyle.done : hovered ? TourStyle.text : TourStyle.secondaryText
    Accessible.name: hasCopied ? qsTr("Copied") : qsTr("Copy the path")
    onClicked: {
        hasCopied = true;
        fading.restart();
    }

    Timer {
        id: fading

        interval: 1600
        onTriggered: root.hasCopied = false
    }
}
