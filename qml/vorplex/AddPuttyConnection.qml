import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.putty.ConnectDialogBackend 1.0

// Adds a PuTTY terminal connection, or edits the one at connectionIndex.
FormPage {
    id: form

    property int connectionIndex: -1
    readonly property bool editing: connectionIndex >= 0
    property string loadedName

    signal saved(string name)

    function load() {
        backend.loadConnection(connectionIndex);
        loadedName = backend.getConnectionName();
        nameField.text = loadedName;
        hostField.text = backend.getAddress();
        userField.text = backend.getUsername();
    }

    // A PuTTY record needs no more than its name.
    function validate() {
        nameField.errorText = nameField.text.trim() === "" ? qsTr("Connection name can't be empty") : "";
        if (nameField.errorText !== "") {
            form.reveal(nameField);
            nameField.focusInput();
            return false;
        }
        return true;
    }

    title: editing ? qsTr("Edit PuTTY Connection") : qsTr("Add PuTTY Connection")
    subtitle: editing ? loadedName : qsTr("A terminal session to a server or network device.")
    iconName: "terminal"
    submitText: editing ? qsTr("Save") : qsTr("Add connection")

    Component.onCompleted: {
        if (editing)
            load();
        else
            nameField.focusInput();
    }

    onSubmitted: {
        if (!validate())
            return;
        var name = nameField.text.trim();
        if (editing)
            backend.replaceConnection(connectionIndex, name, hostField.text.trim(), userField.text.trim());
        else
            backend.addConnection(name, hostField.text.trim(), userField.text.trim());
        form.saved(name);
    }

    PuttyConnectDialogBackend {
        id: backend
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Connection")
        headerActions: [
            TestConnectionButton {
                kindName: "putty"
                address: hostField.text
            }
        ]

        FormField {
            id: nameField
            Layout.fillWidth: true
            label: qsTr("Connection name")
            placeholderText: qsTr("Shown on the home screen")
            maximumLength: 80
            onEdited: errorText = ""
            onAccepted: form.submitted()
        }

        GridLayout {
            Layout.fillWidth: true
            columns: width >= 520 ? 2 : 1
            columnSpacing: Theme.spacingL
            rowSpacing: Theme.spacingS

            FormField {
                id: hostField
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                label: qsTr("Host")
                placeholderText: qsTr("Host name or IP address")
                hintText: qsTr("Optional")
                input.inputMethodHints: Qt.ImhUrlCharactersOnly | Qt.ImhNoAutoUppercase
                onAccepted: form.submitted()
            }

            FormField {
                id: userField
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                label: qsTr("User name")
                hintText: qsTr("Optional")
                input.inputMethodHints: Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText
                onAccepted: form.submitted()
            }
        }
    }
}
