import Fendrel.Style
import Fendrel.Types

// A row whose words are the catalogue's.
SettingRow {
    required property SettingsController settings

    label: settings.labelOf(setting)
    help: settings.helpOf(setting)
}
