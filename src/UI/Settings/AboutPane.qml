import QtQuick
import Fendrel.Style
import Fendrel.Types

// What this program is.
Column {
    id: page

    required property SettingsController settings
    required property Colors colors
    readonly property AboutController about: settings.about

    width: parent?.width ?? 0
    spacing: 18

    SettingsGroup {
        colors: page.colors
        SettingRow {
            colors: page.colors
            label: qsTr("Fendrel %1").arg(page.about.version)
            help: qsTr("Free software under the GNU General Public License, version 3 or later.")
        }
        SettingRow {
            visible: page.about.extensionVersion !== ""
            colors: page.colors
            label: qsTr("Companion extension %1").arg(page.about.extensionVersion)
            help: qsTr("The one that comes with this Fendrel. Permissions shows the browsers that have it.")
        }
        SettingRow {
            colors: page.colors
            label: qsTr("Your data stays here")
            help: qsTr("What Fendrel learns about your work never leaves this computer.")
        }
    }

    SettingsGroup {
        colors: page.colors
        title: qsTr("When something is wrong")
        SettingRow {
            colors: page.colors
            label: qsTr("Diagnostic bundle")
            help: page.about.problem !== "" ? qsTr("It couldn't be written: %1").arg(page.about.problem)
                : page.about.report !== "" ? qsTr("Written to %1").arg(page.about.report)
                : qsTr("A file for whoever helps you. It has versions, settings and the log, but no titles, sites, applications, modes, words, addresses or keys.")
            PushButton {
                colors: page.colors
                text: qsTr("Make a Bundle…")
                isEnabled: !page.about.isWriting && !page.settings.files.isOpen
                onClicked: page.about.writeReportFor(this)
            }
        }
    }

    SettingsGroup {
        colors: page.colors
        title: qsTr("Where files are")
        Repeater {
            model: page.about.folders
            SettingRow {
                id: folder
                required property var modelData
                colors: page.colors
                label: modelData.name
                help: modelData.path
                PushButton {
                    colors: page.colors
                    text: qsTr("Open")
                    Accessible.name: qsTr("Open %1").arg(folder.modelData.name)
                    onClicked: page.about.openFolder(folder.modelData.path)
                }
            }
        }
    }

    SettingsGroup {
        colors: page.colors
        title: qsTr("What it is built on")
        Repeater {
            model: page.about.dependencies
            SettingRow {
                id: dependency
                required property var modelData
                colors: page.colors
                label: modelData.name
                help: qsTr("%1 · %2").arg(modelData.licence).arg(modelData.purpose)
                PushButton {
                    visible: dependency.modelData.address !== ""
                    colors: page.colors
                    text: qsTr("License")
                    Accessible.name: qsTr("License of %1").arg(dependency.modelData.name)
                    onClicked: page.about.openAddress(dependency.modelData.address)
                }
            }
        }
    }
}
