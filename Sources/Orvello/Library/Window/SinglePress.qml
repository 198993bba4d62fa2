import QtQuick

// Lets each press of a key through once, however long the key is held. The events do not tell: on X11 some repetitions look
// like new presses, each with a release right before it. So a key counts as held until it has been up for a moment.
Timer {
    id: root

    property int heldKey: 0

    function admits(event: KeyEvent): bool {
        stop();
        if (heldKey === event.key || event.isAutoRepeat)
            return false;
        heldKey = event.key;
        return true;
    }

    function keyReleased(): void {
        restart();
    }

    // The release may go to somebody else.
    function reset(): void {
        stop();
        heldKey = 0;
    }

    interval: 80
    onTriggered: heldKey = 0
}
