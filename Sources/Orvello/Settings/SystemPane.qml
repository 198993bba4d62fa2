import QtQuick
import QtQuick.Controls

// A window's background in the colours of the desktop, which all controls on it take over. Some
// control styles have a palette of their own, and would stay light on a dark desktop.
Pane {
    id: root

    readonly property SystemPalette active: SystemPalette {}
    readonly property SystemPalette disabled: SystemPalette {
        colorGroup: SystemPalette.Disabled
    }

    palette {
        window: active.window
        windowText: active.windowText
        base: active.base
        alternateBase: active.alternateBase
        text: active.text
        button: active.button
        buttonText: active.buttonText
        highlight: active.highlight
        highlightedText: active.highlightedText
        light: active.light
        midlight: active.midlight
        mid: active.mid
        dark: active.dark
        shadow: active.shadow
        disabled {
            windowText: root.disabled.windowText
            text: root.disabled.text
            buttonText: root.disabled.buttonText
            highlight: root.disabled.highlight
            highlightedText: root.disabled.highlightedText
        }
    }
    padding: 0
}
