import QtQuick
import Fendrel.Style

// A preference that is a line of text.
CatalogRow {
    id: row

    property string placeholder: ""

    InputField {
        id: field
        colors: row.colors
        name: row.label
        placeholder: row.placeholder
        text: row.settings.preferences[row.setting]
        onCommitted: text => {
            row.settings.preferences[row.setting] = text.trim()
            field.text = Qt.binding(() => row.settings.preferences[row.setting]) // as it was taken over
        }
    }
}
