import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// A row with a slider over a range that ends exactly at its bounds. A value beyond them is shown at
// the bound and keeps its value until the user moves the slider.
SettingsRow {
    id: root

    required property real value
    required property real from
    required property real to
    required property real step // How far the keys move it. The pointer moves it freely.

    signal moved(value: real)

    labelShare: 0.44

    // So many steps up, on a grid of whole steps, which a value between two of them joins first.
    function nudge(steps: real) {
        const exact = slider.value / step;
        const slack = 1e-6; // What fractions lose: three times 0.1 is more than 0.3.
        const start = steps > 0 ? Math.floor(exact + slack) : Math.ceil(exact - slack);
        const target = Math.min(Math.max((start + steps) * step, from), to);
        moved(Number(target.toFixed(6)));
    }

    Slider {
        id: slider

        Layout.fillWidth: true
        Layout.preferredWidth: 0.56 * root.width
        from: root.from
        to: root.to
        value: root.value
        onMoved: root.moved(value)
        // White like the knobs of the switches: on a dark desktop the style's own is hard to see.
        handle: Rectangle {
            x: slider.leftPadding + slider.visualPosition * (slider.availableWidth - width)
            y: slider.topPadding + (slider.availableHeight - height) / 2
            implicitWidth: 16
            implicitHeight: 16
            radius: 8
            color: "white"
            border.width: slider.visualFocus ? 2 : 1
            border.color: slider.visualFocus ? root.palette.highlight : Qt.alpha("black", 0.5)
            scale: slider.pressed ? 0.92 : 1
        }
        Accessible.name: root.label
        Accessible.onIncreaseAction: root.nudge(1)
        Accessible.onDecreaseAction: root.nudge(-1)

        Keys.onPressed: event => {
            const steps = {
                [Qt.Key_Left]: slider.mirrored ? 1 : -1,
                [Qt.Key_Down]: -1,
                [Qt.Key_Right]: slider.mirrored ? -1 : 1,
                [Qt.Key_Up]: 1,
                [Qt.Key_PageDown]: -5,
                [Qt.Key_PageUp]: 5,
                [Qt.Key_Home]: -Infinity,
                [Qt.Key_End]: Infinity
            };
            const count = steps[event.key];
            event.accepted = count !== undefined;
            if (event.accepted)
                root.nudge(count);
        }
    }
}
