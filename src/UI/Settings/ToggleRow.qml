import Fendrel.Style

// A preference that is on or off.
CatalogRow {
    id: row

    Toggle {
        colors: row.colors
        name: row.label
        isOn: row.settings.preferences[row.setting]
        onToggled: on => row.settings.preferences[row.setting] = on
    }
}
