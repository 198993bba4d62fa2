import QtQuick
import QtQuick.Controls
import QtQuick.Layouts

// A row with a list of choices. Index -1 stands for no choice.
SettingsRow {
    id: root

    required property var choices // A QStringList, which is no list<string>.
    required property int index

    signal picked(index: int)

    ComboBox {
        Layout.preferredWidth: 160
        model: root.choices
        currentIndex: root.index
        onActivated: index => root.picked(index)
        Accessible.name: root.label
    }
}
