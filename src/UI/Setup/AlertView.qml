import QtQuick
import Fendrel.Style
import Fendrel.Types

// A question or notice with its buttons, the default one first.
FocusScope {
    id: root

    required property AlertController alert

    implicitWidth: 420
    implicitHeight: content.implicitHeight + 48

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

    Column {
        id: content
        x: 28
        y: 24
        width: parent.width - 56
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
        Item { width: 1; height: 6 }
        Row {
            anchors.right: parent.right
            layoutDirection: Qt.RightToLeft
            spacing: 10
            Repeater {
                model: root.alert.buttons
                PushButton {
                    required property string modelData
                    required property int index
                    colors: viewColors
                    text: modelData
                    isFilled: index === 0
                    focus: index === 0
                    onClicked: root.alert.answer(index)
                }
            }
        }
    }
}
