import QtQuick 2.15
import QtQuick.Layouts 1.15

// Text input with a label above and an error or hint line below.
ColumnLayout {
    id: root

    property alias label: labelText.text
    property alias text: input.text
    property alias placeholderText: input.placeholderText
    property alias echoMode: input.echoMode
    property alias readOnly: input.readOnly
    property alias validator: input.validator
    property alias maximumLength: input.maximumLength
    property alias input: input
    property string errorText: ""
    property string hintText: ""

    signal accepted()
    signal edited()

    function clear() {
        input.clear();
        errorText = "";
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
        hasError: root.errorText !== ""
        Accessible.name: root.label
        onAccepted: root.accepted()
        onTextEdited: root.edited()
    }

    FieldMessage {
        Layout.fillWidth: true
        text: root.errorText !== "" ? root.errorText : root.hintText
        isError: root.errorText !== ""
    }
}
