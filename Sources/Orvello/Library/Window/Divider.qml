import QtQuick

// A hairline between two parts of a window.
Rectangle {
    implicitHeight: 1
    color: Qt.alpha(palette.windowText, 0.2)
}
