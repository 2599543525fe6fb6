import QtQuick
import Fendrel.Modes
import Fendrel.Style
import Fendrel.Types

// The pane of the modes.
ModesView {
    required property SettingsController settings

    width: parent?.width ?? 0
    editor: settings.modeEditor
}
