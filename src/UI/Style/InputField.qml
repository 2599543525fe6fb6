import QtQuick

// A field for one line of text.
FocusScope {
    id: field

    required property Colors colors
    property string placeholder: ""
    property string name: placeholder
    property string symbol: ""
    property bool isSecret: false // shows dots for what is typed
    property bool isClearable: false // with a button in it
    property alias text: input.text
    property alias maximumLength: input.maximumLength

    signal edited(text: string) // also when it is cleared
    signal accepted() // with Return
    signal committed(text: string) // with Return, or by leaving the field

    function selectAll() { input.selectAll() }

    implicitHeight: Theme.controlHeight(input.implicitHeight)
    implicitWidth: 240 * Math.max(1, Theme.textScale)
    width: Math.min(implicitWidth, (parent as SettingSlot)?.room ?? implicitWidth)
    activeFocusOnTab: true

    Rectangle {
        anchors.fill: parent
        radius: Theme.radius
        color: field.colors.field
        border.width: input.activeFocus ? 2 : 1
        border.color: input.activeFocus ? field.colors.accent : field.colors.line
    }
    HoverHandler { cursorShape: Qt.IBeamCursor }
    Label {
        colors: field.colors
        color: field.colors.secondaryText
        anchors.fill: input
        horizontalAlignment: input.horizontalAlignment
        verticalAlignment: Text.AlignVCenter
        text: field.placeholder
        visible: input.text === ""
        Accessible.ignored: true
    }
    Symbol {
        id: mark
        anchors { left: parent.left; leftMargin: 10; verticalCenter: parent.verticalCenter }
        name: field.symbol
        size: Math.round(16 * Theme.textScale)
        color: field.colors.secondaryText
        visible: name !== ""
    }
    TextInput {
        id: input
        anchors { fill: parent; leftMargin: field.symbol === "" ? 12 : mark.width + 18; rightMargin: clear.visible ? clear.width + 4 : 12 }
        horizontalAlignment: TextInput.AlignLeft
        verticalAlignment: TextInput.AlignVCenter
        color: field.colors.text
        selectionColor: field.colors.accent
        selectedTextColor: "white"
        selectByMouse: true
        font.pixelSize: Theme.text
        echoMode: field.isSecret ? TextInput.Password : TextInput.Normal
        clip: true
        focus: true
        maximumLength: 280
        onTextEdited: field.edited(text)
        onAccepted: field.accepted()
        onEditingFinished: field.committed(text)
        Accessible.role: Accessible.EditableText
        Accessible.name: field.name
    }
    Item {
        id: clear
        anchors { right: parent.right; top: parent.top; bottom: parent.bottom }
        width: cross.width + 16
        visible: field.isClearable && input.text !== ""
        Accessible.role: Accessible.Button
        Accessible.name: qsTr("Clear")
        Accessible.onPressAction: empty()
        function empty() {
            input.clear()
            field.edited("")
        }
        Symbol {
            id: cross
            anchors.centerIn: parent
            name: "xmark"
            size: Math.round(14 * Theme.textScale)
            color: clearHover.hovered ? field.colors.text : field.colors.secondaryText
        }
        HoverHandler { id: clearHover; cursorShape: Qt.ArrowCursor }
        TapHandler { onTapped: clear.empty() }
    }
}
