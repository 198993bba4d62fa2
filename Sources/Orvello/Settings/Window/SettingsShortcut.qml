import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// A row that names a command and the keys that give it.
SettingsRow {
    id: root

    required property string keys

    implicitHeight: Math.max(34, words.implicitHeight + 16)
    labelShare: 0.4
    Accessible.role: Accessible.StaticText
    //: Read aloud. %1: what the keys do; %2: the keys.
    Accessible.name: qsTr("%1: %2").arg(label).arg(keys)

    Label {
        id: words

        Layout.maximumWidth: 0.6 * root.width
        text: root.keys
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        color: Qt.alpha(palette.windowText, 0.75)
        Accessible.ignored: true
    }
}
