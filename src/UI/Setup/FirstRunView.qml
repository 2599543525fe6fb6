import QtQuick
import Fendrel.Style
import Fendrel.Types

// The first run: four pages, led through from below.
FocusScope {
    id: root

    required property FirstRunController firstRun
    readonly property int margin: 40
    readonly property bool isLast: firstRun.page === firstRun.pageCount - 1

    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Keys.onEscapePressed: firstRun.leave()

    Colors {
        id: viewColors
        isDark: root.firstRun.isDark
    }
    Rectangle {
        anchors.fill: parent
        color: viewColors.window
    }

    ScrollArea {
        id: scroller
        colors: viewColors
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: footer.top }
        contentHeight: page.height + page.y + 20

        Loader {
            id: page
            x: root.margin
            y: 34
            width: scroller.width - 2 * root.margin
            readonly property int number: root.firstRun.page
            onNumberChanged: show()
            Component.onCompleted: show()
            function show() {
                // The keyboard would go with the page that goes.
                for (let item = scroller.focused; item; item = item.parent) {
                    if (item === page)
                        next.forceActiveFocus(Qt.OtherFocusReason)
                }
                scroller.contentY = 0
                setSource(["ModesPage.qml", "BrowsersPage.qml", "ProblemsPage.qml", "StartPage.qml"][number],
                          { firstRun: root.firstRun, colors: viewColors })
                appearing.restart()
            }
            NumberAnimation on opacity { id: appearing; from: 0; to: 1; duration: Theme.slow; easing.type: Easing.OutCubic }
        }
    }

    Item {
        id: footer
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom }
        height: next.height + 40

        Rectangle { width: parent.width; height: 1; color: viewColors.line }

        PushButton {
            id: back
            anchors { left: parent.left; leftMargin: root.margin; verticalCenter: parent.verticalCenter }
            colors: viewColors
            text: root.firstRun.page === 0 ? qsTr("Not Now") : qsTr("Back")
            onClicked: root.firstRun.page === 0 ? root.firstRun.leave() : root.firstRun.page--
        }
        Row {
            id: dots
            anchors.centerIn: parent
            spacing: Math.round(9 * scaling)
            readonly property real scaling: Math.max(1, Theme.textScale)
            Accessible.role: Accessible.StaticText
            Accessible.name: qsTr("Page %1 of %2").arg(root.firstRun.page + 1).arg(root.firstRun.pageCount)
            Repeater {
                model: root.firstRun.pageCount
                Rectangle {
                    required property int index
                    readonly property bool isCurrent: index === root.firstRun.page
                    width: Math.round((isCurrent ? 22 : 8) * dots.scaling)
                    height: Math.round(8 * dots.scaling)
                    radius: height / 2
                    color: isCurrent ? viewColors.accent : viewColors.faded(viewColors.text, 0.22)
                    Behavior on width { NumberAnimation { duration: Theme.normal; easing.type: Easing.OutCubic } }
                }
            }
        }
        PushButton {
            id: next
            anchors { right: parent.right; rightMargin: root.margin; verticalCenter: parent.verticalCenter }
            width: Math.max(implicitWidth, 150)
            colors: viewColors
            isFilled: true
            isEnabled: root.firstRun.chosen.length > 0
            focus: true
            text: !root.isLast ? qsTr("Continue") : root.firstRun.isRepeat ? qsTr("Done") : qsTr("Start")
            onClicked: root.isLast ? root.firstRun.finish() : root.firstRun.page++
        }
    }
}
