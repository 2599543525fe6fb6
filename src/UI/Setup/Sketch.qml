import QtQuick
import Fendrel.Style

// A small drawing of the screen: the dock, the gate, or a focus session.
Item {
    id: sketch

    required property Colors colors
    required property string kind // dock, gate or focus

    implicitWidth: 150
    implicitHeight: 92
    Accessible.ignored: true
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true

    readonly property color ink: colors.isDark ? "#dfe3ee" : "#ffffff"

    Rectangle {
        id: screen
        anchors.fill: parent
        radius: 12
        gradient: Gradient {
            GradientStop { position: 0; color: sketch.colors.isDark ? "#3a4a6b" : "#c5d6f0" }
            GradientStop { position: 1; color: sketch.colors.isDark ? "#2a3147" : "#a9bfe3" }
        }
        border.width: sketch.kind === "focus" ? 3 : 1
        border.color: sketch.kind === "focus" ? "#2ea055" : sketch.colors.line
    }
    Rectangle { // a window
        x: Math.round(sketch.width * 0.2)
        y: 14
        width: 66
        height: 44
        radius: 5
        color: sketch.colors.faded(sketch.ink, 0.82)
        Rectangle { x: 7; y: 8; width: 36; height: 3; radius: 1.5; color: "#40000000" }
        Rectangle { x: 7; y: 16; width: 47; height: 3; radius: 1.5; color: "#26000000" }
        Rectangle { x: 7; y: 24; width: 41; height: 3; radius: 1.5; color: "#26000000" }
    }
    Rectangle { // the gate's darkness
        anchors.fill: parent
        anchors.margins: 1
        radius: 11
        color: "#8a10131c"
        visible: sketch.kind === "gate"
    }
    Rectangle { // the gate's question
        anchors.horizontalCenter: parent.horizontalCenter
        y: 19
        width: 74
        height: 40
        radius: 8
        color: sketch.ink
        visible: sketch.kind === "gate"
        Rectangle { anchors.horizontalCenter: parent.horizontalCenter; y: 9; width: 44; height: 4; radius: 2; color: "#66000000" }
        Row {
            anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: 8 }
            spacing: 5
            Rectangle { width: 27; height: 10; radius: 5; color: "#2f7df0" }
            Rectangle { width: 27; height: 10; radius: 5; color: "#26000000" }
        }
    }
    Rectangle { // the dock
        anchors { horizontalCenter: parent.horizontalCenter; bottom: parent.bottom; bottomMargin: 7 }
        width: icons.width + 12
        height: 19
        radius: 6
        color: sketch.colors.faded(sketch.ink, sketch.kind === "dock" ? 0.92 : 0.5)
        Row {
            id: icons
            anchors.centerIn: parent
            spacing: 4
            opacity: sketch.kind === "gate" ? 0.55 : 1
            Repeater {
                model: ["#2f7df0", "#f0644f", "#2ea055", "#e89a1c", "#8b5ce6"]
                Rectangle {
                    required property string modelData
                    width: 11
                    height: 11
                    radius: 3
                    color: modelData
                }
            }
        }
    }
    Symbol {
        anchors { right: parent.right; rightMargin: 13; top: parent.top; topMargin: 14 }
        visible: sketch.kind === "focus"
        name: "timer"
        size: 22
        color: sketch.colors.isDark ? "#ffffff" : "#1b4d2c"
    }
}
