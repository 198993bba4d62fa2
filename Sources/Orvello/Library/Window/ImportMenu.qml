pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQml.Models
import Orvello

// The button that drops down the menu of ways to import a deck.
ToolbarButton {
    id: root

    required property DeckImports imports

    symbol: "square.and.arrow.down"
    help: qsTr("Import speaker notes from a deck")
    ToolTip.visible: (hovered || visualFocus) && !menu.visible
    Accessible.role: Accessible.ButtonMenu
    onClicked: menu.popup(root, 0, -menu.height)

    ContextMenu {
        id: menu

        palette: root.palette // Popups do not inherit the window's.

        Instantiator {
            model: root.imports.titles
            delegate: MenuItem {
                required property string modelData
                required property int index

                text: modelData
                // A file can be read at any time, one open deck after the other.
                enabled: index === 0 || root.imports.readingText === ""
                onTriggered: root.imports.run(index)
            }
            onObjectAdded: (index, object) => menu.insertItem(index, object as MenuItem)
            onObjectRemoved: (index, object) => menu.removeItem(object as MenuItem)
        }
    }
}
