import QtQuick
import Fendrel.Style
import Fendrel.Types

// The symbols of the ticker.
CatalogRow {
    id: row

    required property WidgetSubjects subjects

    setting: "tickerSymbols"
    problem: subjects.symbolsProblem

    InputField {
        property bool isNew: false
        colors: row.colors
        name: row.label
        placeholder: "AAPL, ^GSPC, BTC-USD"
        maximumLength: 400
        text: row.subjects.symbols
        onEdited: isNew = true
        onCommitted: typed => {
            if (!isNew)
                return
            isNew = false
            row.subjects.setSymbols(typed)
            text = Qt.binding(() => row.subjects.symbols) // as they were taken over
        }
    }
}
