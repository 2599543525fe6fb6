import QtQuick
import Fendrel.Style
import Fendrel.Types

// What happens from now on.
Column {
    id: page

    required property FirstRunController firstRun
    required property Colors colors

    width: parent?.width ?? 0
    spacing: 24

    component Fact: Grid {
        id: fact
        required property string kind
        required property string title
        required property string text
        readonly property bool isWide: facts.columns === 1
        width: (facts.width - (facts.columns - 1) * facts.spacing) / facts.columns
        columns: isWide ? 2 : 1
        spacing: isWide ? 20 : 12
        Sketch {
            id: sketch
            colors: page.colors
            kind: fact.kind
            width: fact.isWide ? implicitWidth : fact.width
        }
        Column {
            width: fact.width - (fact.isWide ? sketch.width + fact.spacing : 0)
            spacing: 4
            Label {
                colors: page.colors
                text: fact.title
                font.weight: Font.DemiBold
                wrapMode: Text.Wrap
                width: parent.width
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
            Label {
                colors: page.colors
                color: page.colors.secondaryText
                text: fact.text
                font.pixelSize: Theme.textHelp
                lineHeight: 1.2
                wrapMode: Text.Wrap
                width: parent.width
                Accessible.role: Accessible.StaticText
                Accessible.name: text
            }
        }
    }

    PageHeading {
        colors: page.colors
        title: qsTr("You are set")
        text: qsTr("This is all there is to it.")
    }
    Grid {
        id: facts
        width: parent.width
        columns: width >= 560 * Theme.textScale ? 3 : 1
        spacing: 20
        Fact {
            kind: "dock"
            title: qsTr("The dock shows your mode")
            text: qsTr("It has the applications of the mode that you are in. Click another mode to switch.")
        }
        Fact {
            kind: "gate"
            title: qsTr("The gate asks before you drift")
            text: qsTr("In a focus session, what belongs to another mode waits until you say that you mean it.")
        }
        Fact {
            kind: "focus"
            title: qsTr("Focus starts when you say so")
            text: qsTr("Press the focus button in the dock. Until then nothing is stopped.")
        }
    }
    SettingsGroup {
        colors: page.colors
        SettingRow {
            visible: page.firstRun.systemDock !== "" || page.firstRun.replacesDock
            colors: page.colors
            label: qsTr("Replace the system dock")
            help: page.firstRun.dockHelp
            Toggle { colors: page.colors; name: qsTr("Replace the system dock"); isOn: page.firstRun.replacesDock; onToggled: on => page.firstRun.replaceDock(on) }
        }
        SettingRow {
            colors: page.colors
            label: qsTr("Start at log-in")
            help: qsTr("Fendrel is there whenever you log in.")
            Toggle { colors: page.colors; name: qsTr("Start at log-in"); isOn: page.firstRun.startsAtLogin; onToggled: on => page.firstRun.startsAtLogin = on }
        }
    }
}
