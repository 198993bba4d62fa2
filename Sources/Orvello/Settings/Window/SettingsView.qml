pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtQuick.Window
import Orvello

// The preferences as a form, each control bound to what it shows. It scrolls where it does not fit.
Pane {
    id: root

    required property SettingsStore settings
    required property SettingsForm form
    required property VoiceActivityEngine voice
    required property ReadingPace pace
    required property UpdateController updates
    required property string version
    required property ShortcutList shortcuts
    required property Compositing compositing
    required property facts facts
    property ImpressPresenter impress
    property string impressConsent

    readonly property Item focusedItem: Window.activeFocusItem

    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    padding: 0
    onFocusedItemChanged: reveal(focusedItem)

    // Scrolls to what the Tab key reached.
    function reveal(item: Item) {
        if (!item || !sections.contains(sections.mapFromItem(item, 0, 0)))
            return;
        const margin = 16;
        const top = item.mapToItem(flickable.contentItem, 0, 0).y;
        const bottom = top + item.height;
        if (top - margin < flickable.contentY)
            flickable.contentY = Math.max(0, top - margin);
        else if (bottom + margin > flickable.contentY + flickable.height)
            flickable.contentY = Math.min(bottom + margin, flickable.contentHeight) - flickable.height;
    }

    Shortcut {
        sequences: ["Ctrl+W"]
        onActivated: root.Window.window.close()
    }

    Flickable {
        id: flickable

        objectName: "settingsFlickable"

        anchors.fill: parent
        contentHeight: sections.height + 36
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar {
            policy: flickable.contentHeight > flickable.height ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
        }

        ColumnLayout {
            id: sections

            x: 20
            y: 18
            width: flickable.width - 40
            spacing: 20

            SettingsNote {
                Layout.fillWidth: true
                visible: text !== ""
                text: root.form.damageText
            }
            PrompterSettings {
                settings: root.settings
                form: root.form
                compositing: root.compositing
            }
            VoiceSettings {
                settings: root.settings
                form: root.form
                voice: root.voice
                facts: root.facts
            }
            SessionSettings {
                settings: root.settings
                form: root.form
                facts: root.facts
                toggleKey: root.shortcuts.toggleKey
            }
            SlidesSettings {
                settings: root.settings
                facts: root.facts
                impress: root.impress
                consent: root.impressConsent
            }
            PrivacySettings {
                settings: root.settings
                facts: root.facts
            }
            ShortcutSettings {
                shortcuts: root.shortcuts
            }
            UpdateSettings {
                updates: root.updates
                facts: root.facts
                version: root.version
            }
            ReadingSettings {
                settings: root.settings
                pace: root.pace
            }
        }
    }
}
