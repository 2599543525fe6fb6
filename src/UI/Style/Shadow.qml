import QtQuick

// The soft shadow of a rounded rectangle, behind it.
BorderImage {
    required property Item caster
    required property real casterRadius
    property int blur: 18
    property int drop: 4

    readonly property int room: blur + drop
    readonly property int corner: Math.ceil(casterRadius + room)

    x: caster.x - room
    y: caster.y - room
    width: caster.width + 2 * room
    height: caster.height + 2 * room
    source: "image://shadow/" + casterRadius + "/" + blur + "/" + drop
    border { left: corner; right: corner; top: corner; bottom: corner }
    Accessible.ignored: true
}
