import Fendrel.Style

// A preference that is one of a few values.
CatalogRow {
    id: row

    required property list<string> labels

    Choice {
        colors: row.colors
        name: row.label
        labels: row.labels
        current: row.settings.preferences[row.setting]
        onChosen: index => row.settings.preferences[row.setting] = index
    }
}
