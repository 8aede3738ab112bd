import QtQuick 2.15
import QtQuick.Layouts 1.15

// Drop-down with a label, an error or hint line, and room for buttons next to it.
ColumnLayout {
    id: root

    property alias label: labelText.text
    property alias model: combo.model
    property alias textRole: combo.textRole
    property alias currentIndex: combo.currentIndex
    property alias currentText: combo.currentText
    property alias placeholderText: combo.placeholderText
    property alias combo: combo
    property string errorText: ""
    property string hintText: ""
    default property alias trailing: trailingRow.data

    signal activated(int index)

    spacing: 6

    FieldLabel {
        id: labelText
        Layout.fillWidth: true
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: Theme.spacingS

        SelectBox {
            id: combo
            Layout.fillWidth: true
            hasError: root.errorText !== ""
            Accessible.name: root.label
            onActivated: root.activated(index)
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
