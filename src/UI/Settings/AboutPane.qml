import QtQuick
import Fendrel.Style
import Fendrel.Types

// What this program is.
Column {
    id: page

    required property SettingsController settings
    required property Colors colors

    width: parent?.width ?? 0
    spacing: 18

    SettingsGroup {
        colors: page.colors
        SettingRow { colors: page.colors; label: qsTr("Fendrel %1").arg(page.settings.version); help: qsTr("Free software under the GNU General Public License, version 3 or later.") }
        SettingRow { colors: page.colors; label: qsTr("Your data stays here"); help: qsTr("What Fendrel learns about your work never leaves this computer.") }
    }
}
