import QtQuick 2.15
import QtQuick.Layouts 1.15

// Text input with a label above, an error or hint line below and room for buttons beside it.
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
    default property alias trailing: trailingRow.data

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

    RowLayout {
        Layout.fillWidth: true
        spacing: Theme.spacingS

        InputBox {
            id: input
            Layout.fillWidth: true
            hasError: root.errorText !== ""
            Accessible.name: root.label
            onAccepted: root.accepted()
            onTextEdited: root.edited()
        }

        Row {
            id: trailingRow
            visible: children.length > 0
            spacing: Theme.spacingS
        }
    }

    FieldMessage {
        Layout.fillWidth: true
        text: root.errorText !== "" ? root.errorText : root.hintText
        isError: root.errorText !== ""
    }
}
