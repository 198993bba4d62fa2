import QtQuick

TourIconButton {
    symbol: "xmark"
    symbolSize: 12
    restingShade: 0.08
    radius: height / 2
    Accessible.name: qsTr("Close")
}
