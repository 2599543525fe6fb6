import QtQuick
import Fendrel.Style
import Fendrel.Types

// What Fendrel has learned about applications and sites, to be looked through and corrected.
FocusScope {
    id: page

    required property AnswersController controller
    required property Colors colors

    signal closed()

    readonly property var choices: controller.choices
    readonly property int judgementWidth: Math.ceil(Math.max(...controller.answers.judgements.map(text => judgementFont.advanceWidth(text)))) + 2
    readonly property bool isWide: width > 520 * Theme.textScale + judgementWidth
    readonly property int margin: width < 640 * Theme.textScale ? 16 : 32
    readonly property var sources: [{ name: qsTr("From anyone") }, { name: qsTr("From Fendrel") }, { name: qsTr("From you") }]
    property int mode: 0 // of the filter, after "all"
    property int source: 0

    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Pane
    Accessible.name: title.text

    Keys.onEscapePressed: closed()
    Keys.onShortcutOverride: event => event.accepted = event.key === Qt.Key_Escape
    Component.onCompleted: {
        controller.search("")
        controller.onlyMode(-1)
        controller.onlyFrom(-1)
        field.forceActiveFocus(Qt.TabFocusReason)
    }

    Rectangle {
        anchors.fill: parent
        color: page.colors.window
        MouseArea { anchors.fill: parent; hoverEnabled: true; onWheel: wheel => wheel.accepted = true } // it covers another page
    }

    PushButton {
        id: back
        anchors { left: parent.left; leftMargin: page.margin; verticalCenter: title.verticalCenter }
        colors: page.colors
        text: qsTr("Back")
        symbol: "chevron.left"
        onClicked: page.closed()
    }
    Label {
        id: title
        anchors { left: back.right; leftMargin: 16; right: parent.right; rightMargin: page.margin; top: parent.top; topMargin: 24 }
        colors: page.colors
        text: qsTr("Learned Answers")
        font.pixelSize: Theme.title
        font.weight: Font.Bold
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }
    Flow {
        id: filters
        anchors { left: parent.left; right: parent.right; top: title.bottom; margins: page.margin; topMargin: 18 }
        spacing: 10
        InputField {
            id: field
            width: Math.min(parent.width, Math.max(200 * Theme.textScale, parent.width - modeFilter.width - sourceFilter.width - 20))
            colors: page.colors
            name: qsTr("Search answers")
            placeholder: name
            symbol: "magnifyingglass"
            isClearable: true
            onEdited: text => page.controller.search(text)
            onAccepted: list.forceActiveFocus(Qt.TabFocusReason)
            Keys.onDownPressed: list.forceActiveFocus(Qt.TabFocusReason)
        }
        PickButton {
            id: modeFilter
            height: field.height
            colors: page.colors
            name: qsTr("Show only the mode")
            text: page.mode === 0 ? qsTr("All modes") : page.choices[page.mode - 1]?.name ?? ""
            onOpened: menu.open(modeFilter, name, [{ name: qsTr("All modes") }, ...page.choices], page.mode, index => {
                page.mode = index
                page.controller.onlyMode(index - 1)
            })
        }
        PickButton {
            id: sourceFilter
            height: field.height
            colors: page.colors
            name: qsTr("Show only answers")
            text: page.sources[page.source].name
            onOpened: menu.open(sourceFilter, name, page.sources, page.source, index => {
                page.source = index
                page.controller.onlyFrom(index - 1)
            })
        }
    }
    Rectangle {
        anchors { left: parent.left; right: parent.right; top: filters.bottom; bottom: footer.top; margins: page.margin; topMargin: 14; bottomMargin: 14 }
        radius: 14
        color: page.colors.card
        border.width: 1
        border.color: page.colors.line

        ListView {
            id: list
            anchors { fill: parent; margins: 4 }
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            activeFocusOnTab: count > 0
            keyNavigationEnabled: true
            highlightMoveDuration: Theme.quick
            currentIndex: 0
            model: page.controller.answers
            Accessible.role: Accessible.List
            Accessible.name: title.text

            delegate: AnswerRow {
                width: list.width
                colors: page.colors
                isWide: page.isWide
                judgementWidth: page.judgementWidth
                onMenuWanted: from => {
                    const changed = key // the row may be another one's by then
                    const modes = page.choices
                    list.currentIndex = index
                    menu.open(from, qsTr("Mode of %1").arg(name), modes, modes.findIndex(choice => choice.modeID === "" ? modeName === "" : choice.name === modeName),
                              chosen => page.controller.change(changed, chosen))
                }
                onForgotten: page.controller.forget(key)
            }
            Keys.onReturnPressed: (currentItem as AnswerRow)?.openMenu()
            Keys.onSpacePressed: (currentItem as AnswerRow)?.openMenu()
            Keys.onDeletePressed: (currentItem as AnswerRow)?.forgotten()
            Keys.onPressed: event => {
                const rows = Math.max(1, Math.floor(height / Math.max(1, currentItem?.height ?? 1)) - 1)
                const wanted = event.key === Qt.Key_Home ? 0 : event.key === Qt.Key_End ? count - 1
                             : event.key === Qt.Key_PageDown ? Math.min(count - 1, currentIndex + rows)
                             : event.key === Qt.Key_PageUp ? Math.max(0, currentIndex - rows) : -1
                if (wanted < 0)
                    return
                currentIndex = wanted
                event.accepted = true
            }

            Rectangle {
                parent: list
                anchors { right: parent.right; rightMargin: 1 }
                y: list.visibleArea.yPosition * list.height
                width: 5
                height: Math.max(24, list.visibleArea.heightRatio * list.height)
                radius: 2.5
                color: page.colors.secondaryText
                opacity: list.visibleArea.heightRatio >= 1 ? 0 : list.moving ? 0.6 : 0.25
            }
        }
        Nothing {
            anchors.centerIn: parent
            width: Math.min(parent.width - 48, 420 * Theme.textScale)
            colors: page.colors
            visible: list.count === 0
            symbol: page.controller.total === 0 ? "lightbulb" : "magnifyingglass"
            text: page.controller.total === 0 ? qsTr("Nothing is learned yet. What you tell Fendrel in the dock, and what the language model answers, is listed here.")
                                              : qsTr("No answer fits.")
        }
    }
    Item {
        id: footer
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: page.margin; bottomMargin: 20 }
        height: Math.max(count.height, all.height)
        Label {
            id: count
            anchors { left: parent.left; right: all.left; rightMargin: 16; verticalCenter: parent.verticalCenter }
            colors: page.colors
            color: page.colors.secondaryText
            text: list.count === page.controller.total ? qsTr("%n answer(s)", "", list.count)
                                                       : qsTr("%1 of %2").arg(list.count.toLocaleString(Qt.locale(), "f", 0)).arg(page.controller.total.toLocaleString(Qt.locale(), "f", 0))
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        PushButton {
            id: all
            anchors { right: parent.right; verticalCenter: parent.verticalCenter }
            width: Math.min(implicitWidth, parent.width * 0.6)
            colors: page.colors
            text: qsTr("Forget All…")
            symbol: "trash"
            isEnabled: page.controller.total > 0
            onClicked: page.controller.askToForgetAll()
        }
    }
    FontMetrics {
        id: judgementFont
        font.family: title.font.family
        font.pixelSize: Theme.textHelp
    }
    PickMenu {
        id: menu
        colors: page.colors
    }
}
