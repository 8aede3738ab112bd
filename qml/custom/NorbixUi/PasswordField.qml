import QtQuick 2.15
import QtQuick.Layouts 1.15

// Password input with label, show/hide toggle and an error line.
ColumnLayout {
    id: root

    property alias label: labelText.text
    property alias text: input.text
    property alias placeholderText: input.placeholderText
    property alias input: input
    property string errorText: ""
    property string hintText: ""
    property bool revealed: false

    signal accepted()
    signal edited()

    function clear() {
        input.clear();
        errorText = "";
        revealed = false;
    }

    function focusInput() {
        input.forceActiveFocus();
    }

    spacing: 6

    FieldLabel {
        id: labelText
        Layout.fillWidth: true
    }

    InputBox {
        id: input
        Layout.fillWidth: true
        rightPadding: toggle.width + Theme.spacingS
        echoMode: root.revealed ? TextInput.Normal : TextInput.Password
        passwordCharacter: "\u2022"
        inputMethodHints: Qt.ImhHiddenText | Qt.ImhNoPredictiveText | Qt.ImhNoAutoUppercase
        hasError: root.errorText !== ""
        Accessible.name: root.label
        onAccepted: root.accepted()
        onTextEdited: root.edited()

        IconButton {
            id: toggle
            anchors.right: parent.right
            anchors.rightMargin: 2
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.controlHeight - 4
            height: Theme.controlHeight - 4
            iconSize: 18
            iconName: root.revealed ? "eye-off" : "eye"
            text: root.revealed ? qsTr("Hide password") : qsTr("Show password")
            focusPolicy: Qt.NoFocus
            onClicked: root.revealed = !root.revealed
        }
    }

    FieldMessage {
        Layout.fillWidth: true
        text: root.errorText !== "" ? root.errorText : root.hintText
        isError: root.errorText !== ""
    }
}
