import QtQuick
import Fendrel.Style
import Fendrel.Types

// The city of the weather, and who says how it is there.
Column {
    id: rows

    required property Colors colors
    required property SettingsController settings
    required property WidgetSubjects subjects

    Item { // no line between it and its source
        width: parent.width
        height: city.height
        CatalogRow {
            id: city
            colors: rows.colors
            settings: rows.settings
            setting: "weatherPlace"
            problem: rows.subjects.cityProblem
            help: rows.subjects.isLooking ? qsTr("Looking for it…")
                : rows.subjects.guessedCity !== "" ? qsTr("%1 is guessed from your time zone. Type another one to change that.").arg(rows.subjects.guessedCity)
                : rows.settings.helpOf("weatherPlace")
            InputField {
                id: field
                property bool isNew: false
                colors: rows.colors
                name: rows.settings.labelOf("weatherPlace")
                placeholder: rows.subjects.guessedCity === "" ? qsTr("Name of a city") : rows.subjects.guessedCity
                maximumLength: 100
                text: rows.subjects.city
                onEdited: isNew = true
                onAccepted: take()
                onCommitted: if (isNew) take()
                function take() {
                    isNew = false
                    rows.subjects.setCity(text)
                    text = Qt.binding(() => rows.subjects.city) // as it was taken over
                }
            }
        }
    }
    TextLink {
        anchors.leftMargin: 18
        colors: rows.colors
        shade: colors.secondaryText
        symbol: "globe"
        text: qsTr("Weather data by Open-Meteo.com")
        Accessible.description: qsTr("Opens its page in your browser")
        onOpened: rows.subjects.openWeatherSource()
    }
}
