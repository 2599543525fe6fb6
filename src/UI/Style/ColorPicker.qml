import QtQuick

// Any color: by hue, saturation and brightness, or by its code.
Column {
    id: picker

    required property Colors colors
    required property color current

    signal moved(color: color) // at each step on the way
    signal settled()

    // A gray has no hue and black no saturation: what they had is kept, or a slider would jump.
    property real hue: 0
    property real saturation: 0
    property real brightness: 0
    onCurrentChanged: take()
    Component.onCompleted: take()
    function take() {
        if (Qt.colorEqual(current, Qt.hsva(hue, saturation, brightness, 1)))
            return
        if (current.hsvHue >= 0)
            hue = current.hsvHue
        if (current.hsvValue > 0)
            saturation = current.hsvSaturation
        brightness = current.hsvValue
    }
    function mix(newHue: real, newSaturation: real, newBrightness: real) {
        hue = newHue
        saturation = newSaturation
        brightness = newBrightness
        moved(Qt.hsva(hue, saturation, brightness, 1))
    }
    function percent(share: real): string { return qsTr("%1 %").arg(Math.round(100 * share)) }

    spacing: 12

    component Part: Column {
        id: part
        required property string label
        required property real current
        property alias text: control.text
        property alias groove: control.groove
        property alias stepSize: control.stepSize
        signal moved(value: real)
        width: picker.width
        spacing: 4
        Label {
            colors: picker.colors
            color: picker.colors.secondaryText
            text: part.label
            font.pixelSize: Theme.textHelp
            width: parent.width
            Accessible.ignored: true
        }
        Slider {
            id: control
            width: parent.width
            colors: picker.colors
            name: part.label
            current: part.current
            onMoved: value => part.moved(value)
            onSettled: picker.settled()
        }
    }

    Part {
        label: qsTr("Hue")
        current: picker.hue
        stepSize: 1 / 360
        text: qsTr("%1°").arg(Math.round(360 * picker.hue))
        onMoved: value => picker.mix(value, picker.saturation, picker.brightness)
        groove: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: "#ff0000" }
            GradientStop { position: 1 / 6; color: "#ffff00" }
            GradientStop { position: 2 / 6; color: "#00ff00" }
            GradientStop { position: 3 / 6; color: "#00ffff" }
            GradientStop { position: 4 / 6; color: "#0000ff" }
            GradientStop { position: 5 / 6; color: "#ff00ff" }
            GradientStop { position: 1; color: "#ff0000" }
        }
    }
    Part {
        label: qsTr("Saturation")
        current: picker.saturation
        text: picker.percent(picker.saturation)
        onMoved: value => picker.mix(picker.hue, value, picker.brightness)
        groove: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: Qt.hsva(picker.hue, 0, picker.brightness, 1) }
            GradientStop { position: 1; color: Qt.hsva(picker.hue, 1, picker.brightness, 1) }
        }
    }
    Part {
        label: qsTr("Brightness")
        current: picker.brightness
        text: picker.percent(picker.brightness)
        onMoved: value => picker.mix(picker.hue, picker.saturation, value)
        groove: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: "black" }
            GradientStop { position: 1; color: Qt.hsva(picker.hue, picker.saturation, 1, 1) }
        }
    }
    Row {
        spacing: 12
        Label {
            anchors.verticalCenter: parent.verticalCenter
            colors: picker.colors
            color: picker.colors.secondaryText
            text: qsTr("Color code")
            font.pixelSize: Theme.textHelp
            Accessible.ignored: true
        }
        InputField {
            id: code
            width: Math.round(120 * Math.max(1, Theme.textScale))
            colors: picker.colors
            name: qsTr("Color code")
            maximumLength: 7
            readonly property string shown: picker.current.toString()
            onShownChanged: if (!activeFocus) text = shown
            Component.onCompleted: text = shown
            onCommitted: words => {
                const digits = words.trim().replace("#", "")
                if (/^([0-9a-f]{3}|[0-9a-f]{6})$/i.test(digits)) {
                    picker.moved("#" + digits)
                    picker.settled()
                }
                text = Qt.binding(() => code.shown)
            }
        }
    }
}
