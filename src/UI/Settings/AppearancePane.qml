import QtQuick
import Fendrel.Style
import Fendrel.Types

// The pane of the dock's look. The dock itself shows at once what is changed here.
Column {
    id: page

    required property SettingsController settings
    required property Colors colors
    readonly property Preferences preferences: settings.preferences
    readonly property LookEditor editor: settings.lookEditor
    readonly property var look: editor.look

    width: parent?.width ?? 0
    spacing: 18

    Component.onCompleted: editor.isOpen = true
    Component.onDestruction: editor.isOpen = false

    function percent(share: real): string { return qsTr("%1 %").arg(Math.round(100 * share)) }
    function pixels(count: real): string { return qsTr("%1 px").arg(Math.round(count)) }

    component LookRow: CatalogRow {
        colors: page.colors
        settings: page.settings
    }
    component SliderRow: LookRow {
        id: row
        property bool isUsable: true
        Slider {
            readonly property string field: row.setting
            colors: page.colors
            name: row.label
            enabled: row.isUsable
            current: page.look[field]
            from: page.editor.least(field)
            to: page.editor.most(field)
            stepSize: to > 4 ? 1 : 0.01
            text: to > 4 ? page.pixels(value) : page.percent(value)
            onMoved: value => page.editor.move(field, value)
            onSettled: page.editor.keep()
        }
    }

    SettingsGroup {
        colors: page.colors
        ToggleRow { colors: page.colors; settings: page.settings; setting: "matchSystem" }
    }
    SettingsGroup {
        colors: page.colors
        SettingRow {
            colors: page.colors
            setting: "darkAppearance"
            visible: page.preferences.matchSystem
            label: qsTr("Look to change")
            help: qsTr("The dock shows it while this page is open.")
            Choice { colors: page.colors; name: qsTr("Look to change"); labels: [qsTr("Light"), qsTr("Dark")]; current: page.editor.isDark ? 1 : 0; onChosen: index => page.editor.isDark = index === 1 }
        }
        CatalogRow {
            colors: page.colors
            settings: page.settings
            setting: "lightAppearance"
            help: page.editor.preset < 0 ? qsTr("It is your own now. Another one takes its place.") : qsTr("Choose one, and change below what you like.")
            RadioRow {
                id: looks
                readonly property int least: Math.round(94 * Math.max(1, Theme.textScale))
                readonly property int columns: Math.max(2, Math.floor((width + spacing) / (least + spacing)))
                width: (parent as SettingSlot)?.room ?? 0
                spacing: 12
                name: page.settings.labelOf("lightAppearance")
                readonly property var builtIn: page.editor.presets
                model: builtIn.concat([{ label: qsTr("Custom"), look: null }])
                delegate: LookCard {
                    required property var modelData
                    readonly property bool isOwn: modelData.look === null
                    row: looks
                    colors: page.colors
                    width: Math.floor((looks.width + looks.spacing) / looks.columns) - looks.spacing
                    label: modelData.label
                    look: isOwn ? page.look : modelData.look
                    isBlurred: page.editor.canBlur
                    isChosen: isOwn ? page.editor.preset < 0 : page.editor.preset === index
                    visible: !isOwn || isChosen
                    onChosen: if (!isOwn) page.editor.choosePreset(index)
                }
            }
        }
    }

    SettingsGroup {
        colors: page.colors
        title: qsTr("Shape")
        SliderRow { setting: "iconScale" }
        SliderRow {
            setting: "magnification"
            help: isUsable ? settings.helpOf(setting) : qsTr("Icons do not grow while this is off in the dock's settings.")
            isUsable: page.preferences.magnify
        }
        SliderRow { setting: "spacing" }
        SliderRow { setting: "cornerRadius" }
    }

    SettingsGroup {
        colors: page.colors
        title: qsTr("Surface")
        LookRow {
            setting: "background"
            ColorWells {
                colors: page.colors
                name: page.settings.labelOf("background")
                width: Math.min(440 * Math.max(1, Theme.textScale), (parent as SettingSlot)?.room ?? 440)
                current: page.look.background
                choices: [
                    { name: qsTr("White"), color: "#ffffff" },
                    { name: qsTr("Light gray"), color: "#f7f7f9" },
                    { name: qsTr("Cream"), color: "#fbf7ef" },
                    { name: qsTr("Pale blue"), color: "#e2edf7" },
                    { name: qsTr("Pale pink"), color: "#fbe4e8" },
                    { name: qsTr("Black"), color: "#000000" },
                    { name: qsTr("Dark gray"), color: "#1c1d22" },
                    { name: qsTr("Gray"), color: "#33363c" },
                    { name: qsTr("Violet"), color: "#2a2445" },
                    { name: qsTr("Green"), color: "#153128" },
                ]
                onMoved: color => page.editor.moveBackground(color)
                onSettled: page.editor.keep()
            }
        }
        SliderRow {
            setting: "opacity"
            help: !isUsable ? qsTr("Nothing shines through until a compositor runs on this desktop.")
                : page.editor.isReadable ? settings.helpOf(setting)
                : qsTr("Text may be hard to read over some backgrounds.")
            isUsable: page.editor.isBlended
        }
        LookRow {
            setting: "blur"
            help: page.editor.canBlur ? settings.helpOf(setting)
                : page.editor.isBlended ? qsTr("This desktop's compositor does not offer it.")
                : qsTr("This needs a compositor, and none runs on this desktop.")
            Toggle {
                colors: page.colors
                name: page.settings.labelOf("blur")
                isOn: page.look.blur && page.editor.canBlur
                enabled: page.editor.canBlur
                opacity: enabled ? 1 : 0.45
                onToggled: on => page.editor.setBlur(on)
            }
        }
        SliderRow {
            setting: "shadow"
            help: isUsable ? settings.helpOf(setting) : qsTr("This needs a compositor, and none runs on this desktop.")
            isUsable: page.editor.isBlended
        }
        SliderRow { setting: "border" }
    }
    ResetButton { colors: page.colors; settings: page.settings; pane: "appearance" }
}
