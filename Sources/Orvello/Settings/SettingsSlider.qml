import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// A row with a slider over a range that ends exactly at its bounds. A value beyond them is shown at
// the bound and stays what it is until the user moves the slider.
SettingsRow {
    id: root

    required property real value
    required property real from
    required property real to
    required property real step // By which the keys move it. The pointer moves it freely.

    signal moved(value: real)

    labelShare: 0.44

    function nudge(difference: real) {
        moved(Math.min(Math.max(slider.value + difference, from), to));
    }

    Slider {
        id: slider

        Layout.fillWidth: true
        Layout.preferredWidth: 0.56 * root.width
        from: root.from
        to: root.to
        value: root.value
        onMoved: root.moved(value)
        Accessible.name: root.label
        Accessible.onIncreaseAction: root.nudge(root.step)
        Accessible.onDecreaseAction: root.nudge(-root.step)

        Keys.onPressed: event => {
            const steps = {
                [Qt.Key_Left]: -1,
                [Qt.Key_Down]: -1,
                [Qt.Key_Right]: 1,
                [Qt.Key_Up]: 1,
                [Qt.Key_PageDown]: -5,
                [Qt.Key_PageUp]: 5,
                [Qt.Key_Home]: -Infinity,
                [Qt.Key_End]: Infinity
            };
            const count = steps[event.key];
            event.accepted = count !== undefined;
            if (event.accepted)
                root.nudge(count * root.step);
        }
    }
}
