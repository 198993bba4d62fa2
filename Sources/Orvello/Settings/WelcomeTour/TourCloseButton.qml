import QtQuick

TourIconButton {
    symbol: "xmark"
    symbolSize: 12
    restingOpacity: 0.08
    radius: height / 2
    focusPolicy: Qt.TabFocus
    Accessible.name: qsTr("Close")
}
