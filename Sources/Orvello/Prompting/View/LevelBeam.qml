pragma ComponentBehavior: Bound
import QtQuick
import Orvello

// Five bars, as many of them green as the voice is loud.
Row {
    id: root

    required property LevelMeter meter

    spacing: 2

    Repeater {
        model: root.meter.barCount
        delegate: Rectangle {
            required property int index

            width: 3
            height: 10
            color: index < root.meter.litBars ? CardStyle.green : CardStyle.unlit
        }
    }
}
