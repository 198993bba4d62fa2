import QtQuick

// A part of an item at its own place, clear at one height of the item and opaque at another.
ShaderEffect {
    id: root

    required property Item source
    required property double clearAt
    required property double opaqueAt

    // What the shader interpolates: how visible the strip is at its top and bottom.
    readonly property double topVisibility: (y - clearAt) / (opaqueAt - clearAt)
    readonly property double bottomVisibility: (y + height - clearAt) / (opaqueAt - clearAt)
    readonly property var strip: ShaderEffectSource {
        sourceItem: root.source
        sourceRect: Qt.rect(0, root.y, root.width, root.height)
    }

    width: source.width
    fragmentShader: "Fade.frag.qsb"
}
