import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Layouts 1.15
import NorbixUi 1.0

// The catalogue of keyboard layouts X knows, to check the ones to add.
ModalDialog {
    id: dialog

    readonly property var layoutModel: typeof keyboadLayoutModel !== "undefined" ? keyboadLayoutModel : null
    readonly property bool loading: !layoutModel || layoutModel.loading
    property string filter: ""

    signal applied()

    title: qsTr("Add keyboard layouts")
    okText: qsTr("Add")
    okEnabled: !loading && layoutModel.checkedCount > 0
    onAboutToShow: {
        filterField.clear();
        if (layoutModel)
            layoutModel.clearRowChecked();
    }
    onOkClicked: {
        layoutModel.apply();
        dialog.applied();
    }
    onCancelled: {
        if (layoutModel)
            layoutModel.clearRowChecked();
    }

    FormField {
        id: filterField
        Layout.fillWidth: true
        label: qsTr("Search")
        placeholderText: qsTr("Language or country")
        enabled: !dialog.loading
        onTextChanged: dialog.filter = text.trim().toLowerCase()
    }

    Text {
        Layout.fillWidth: true
        visible: dialog.loading
        text: qsTr("Loading info...")
        color: Theme.textSecondary
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontBody
    }

    Text {
        Layout.fillWidth: true
        visible: !dialog.loading && list.count === 0
        text: qsTr("The list of keyboard layouts could not be read.")
        color: Theme.danger
        font.family: Theme.fontFamily
        font.pixelSize: Theme.fontBody
        wrapMode: Text.Wrap
    }

    ListView {
        id: list
        Layout.fillWidth: true
        Layout.preferredHeight: 320
        visible: !dialog.loading
        clip: true
        model: dialog.layoutModel
        boundsBehavior: Flickable.StopAtBounds
        T.ScrollBar.vertical: NxScrollBar {}

        delegate: NxCheckBox {
            readonly property bool matches: dialog.filter === "" || model.name.toLowerCase().indexOf(dialog.filter) >= 0
                                            || model.code.toLowerCase().indexOf(dialog.filter) >= 0
            width: list.width
            height: matches ? implicitHeight : 0
            visible: matches
            text: model.name + "  (" + model.code + ")"
            checked: model.checked
            enabled: model.selectable
            onToggled: {
                if (checked)
                    dialog.layoutModel.addRowChecked(index);
                else
                    dialog.layoutModel.removeRowChecked(index);
            }
        }
    }
}
