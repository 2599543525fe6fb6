import QtQuick
import Fendrel.Style
import Fendrel.Types

// A question or notice with its buttons, the default one first.
FocusScope {
    id: root

    required property AlertController alert
    readonly property int margin: 28
    // Beside one another where they fit, else below one another.
    readonly property bool isStacked: buttons.wanted > width - 2 * margin

    implicitWidth: Math.round(420 * Math.max(1, Theme.textScale))
    implicitHeight: words.height + footer.height

    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true

    Colors {
        id: viewColors
        isDark: root.alert.isDark
    }

    Accessible.role: Accessible.AlertMessage
    Accessible.name: alert.message
    Accessible.description: alert.informativeText
    Keys.onEscapePressed: alert.cancel()

    Rectangle {
        anchors.fill: parent
        color: viewColors.window
    }

    // What is longer than the screen scrolls; its buttons stay in sight.
    Flickable {
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: footer.top }
        contentHeight: words.height
        boundsBehavior: Flickable.StopAtBounds
        clip: contentHeight > height

        Item {
            id: words
            width: parent.width
            height: content.height + 24

            Column {
                id: content
                anchors { left: parent.left; right: parent.right; top: parent.top; leftMargin: root.margin; rightMargin: root.margin; topMargin: 24 }
                spacing: 10

                Label {
                    colors: viewColors
                    width: parent.width
                    text: root.alert.message
                    font.pixelSize: Theme.textLarge + 1
                    font.weight: Font.Bold
                    wrapMode: Text.Wrap
                }
                Label {
                    colors: viewColors
                    color: viewColors.secondaryText
                    width: parent.width
                    text: root.alert.informativeText
                    wrapMode: Text.Wrap
                    lineHeight: 1.2
                }
            }
        }
    }
    Item {
        id: footer
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; leftMargin: root.margin; rightMargin: root.margin }
        height: buttons.height + 22 + 24

        Grid {
            id: buttons
            readonly property real wanted: {
                let sum = -spacing
                for (let index = 0; index < choices.count; ++index)
                    sum += choices.itemAt(index).implicitWidth + spacing
                return sum
            }
            anchors { right: parent.right; top: parent.top; topMargin: 22 }
            // The default one stands at the end, as where the eye ends up.
            layoutDirection: Qt.RightToLeft
            columns: root.isStacked ? 1 : Math.max(1, choices.count)
            spacing: 10
            Repeater {
                id: choices
                model: root.alert.buttons
                PushButton {
                    required property string modelData
                    required property int index
                    width: root.isStacked ? footer.width : implicitWidth
                    colors: viewColors
                    text: modelData
                    isFilled: index === 0
                    tint: root.alert.isGrave ? viewColors.grave : viewColors.accent
                    focus: index === (root.alert.isGrave ? root.alert.buttons.length - 1 : 0)
                    onClicked: root.alert.answer(index)
                }
            }
        }
    }
}
