import QtQuick

// A field for one line of text.
FocusScope {
    id: field

    required property Colors colors
    property string placeholder: ""
    property string name: placeholder
    property alias text: input.text
    property alias maximumLength: input.maximumLength

    signal edited(text: string)
    signal accepted() // with Return
    signal committed(text: string) // with Return, or by leaving the field

    implicitHeight: 40
    implicitWidth: 240
    activeFocusOnTab: true

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: field.colors.field
        border.width: input.activeFocus ? 2 : 1
        border.color: input.activeFocus ? field.colors.accent : field.colors.line
    }
    Label {
        colors: field.colors
        color: field.colors.secondaryText
        anchors.fill: input
        verticalAlignment: Text.AlignVCenter
        text: field.placeholder
        visible: input.text === ""
        Accessible.ignored: true
    }
    TextInput {
        id: input
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        verticalAlignment: TextInput.AlignVCenter
        color: field.colors.text
        selectionColor: field.colors.accent
        selectedTextColor: "white"
        selectByMouse: true
        font.pixelSize: Theme.text
        clip: true
        focus: true
        maximumLength: 280
        onTextEdited: field.edited(text)
        onAccepted: field.accepted()
        onEditingFinished: field.committed(text)
        Accessible.role: Accessible.EditableText
        Accessible.name: field.name
    }
}
