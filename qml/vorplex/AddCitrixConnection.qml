import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.citrix.ConnectDialogBackend 1.0

// Adds a Citrix connection, or edits the one at connectionIndex.
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
        serverField.text = backend.getServer();
        userField.text = backend.getUsername();
        passwordField.text = backend.getPassword();
        rememberBox.checked = userField.text !== "" || passwordField.text !== "";
        desktopField.text = backend.getDesktop();
        resourceField.text = backend.getResource();
    }

    function checkServer() {
        serverField.errorText = serverField.text.trim() === "" ? qsTr("Server address can't be empty") : "";
        return serverField.errorText === "";
    }

    function validate() {
        nameField.errorText = nameField.text.trim() === "" ? qsTr("Connection name can't be empty") : "";
        checkServer();
        var invalid = nameField.errorText !== "" ? nameField : serverField.errorText !== "" ? serverField : null;
        if (invalid) {
            form.reveal(invalid);
            invalid.focusInput();
            return false;
        }
        return true;
    }

    function browseResources() {
        if (!checkServer()) {
            form.reveal(serverField);
            serverField.focusInput();
            return;
        }
        resourceBrowser.browse(serverField.text.trim(), userField.text.trim(), passwordField.text);
    }

    title: editing ? qsTr("Edit Citrix Connection") : qsTr("Add Citrix Connection")
    subtitle: editing ? loadedName : qsTr("A published desktop or application from a Citrix store.")
    iconName: "cloud"
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
            backend.updateConnection(connectionIndex, name, serverField.text.trim(), rememberBox.checked,
                                     userField.text.trim(), passwordField.text, desktopField.text.trim(),
                                     resourceField.text.trim());
        else
            backend.addConnection(name, serverField.text.trim(), rememberBox.checked, userField.text.trim(),
                                  passwordField.text, desktopField.text.trim(), resourceField.text.trim());
        form.saved(name);
    }

    CitrixConnectDialogBackend {
        id: backend
    }

    CitrixProgressPopup {
        id: resourceBrowser
        mode: "browse"
        onResourceChosen: resourceField.text = name
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Connection")
        headerActions: [
            TestConnectionButton {
                kindName: "citrix"
                address: serverField.text
            }
        ]

        GridLayout {
            Layout.fillWidth: true
            columns: width >= 520 ? 2 : 1
            columnSpacing: Theme.spacingL
            rowSpacing: Theme.spacingS

            FormField {
                id: nameField
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                label: qsTr("Connection name")
                placeholderText: qsTr("Shown on the home screen")
                maximumLength: 80
                onEdited: errorText = ""
                onAccepted: form.submitted()
            }

            FormField {
                id: serverField
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                label: qsTr("Server address")
                placeholderText: qsTr("Store address, e.g. https://citrix.example.com")
                input.inputMethodHints: Qt.ImhUrlCharactersOnly | Qt.ImhNoAutoUppercase
                onEdited: errorText = ""
                onAccepted: form.submitted()
            }
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Credentials")

        NxCheckBox {
            id: rememberBox
            Layout.fillWidth: true
            text: qsTr("Remember credentials")
        }

        FieldMessage {
            Layout.fillWidth: true
            Layout.topMargin: -Theme.spacingS
            isError: false
            text: rememberBox.checked ? qsTr("User name and password are saved with the connection.")
                                      : qsTr("User name and password are only used to browse resources and are not saved.")
        }

        GridLayout {
            Layout.fillWidth: true
            columns: width >= 520 ? 2 : 1
            columnSpacing: Theme.spacingL
            rowSpacing: Theme.spacingS

            FormField {
                id: userField
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                label: qsTr("User name")
                input.inputMethodHints: Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText
                onAccepted: form.submitted()
            }

            PasswordField {
                id: passwordField
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                label: qsTr("Password")
                onAccepted: form.submitted()
            }
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Resource")
        subtitle: qsTr("The desktop or application this connection opens.")

        FormField {
            id: desktopField
            Layout.fillWidth: true
            label: qsTr("Desktop")
            placeholderText: qsTr("Optional")
            onAccepted: form.submitted()
        }

        FormField {
            id: resourceField
            Layout.fillWidth: true
            label: qsTr("Resource")
            placeholderText: qsTr("Name as the store lists it")
            onAccepted: form.submitted()

            SecondaryButton {
                iconName: "grid"
                text: qsTr("Browse resources")
                onClicked: form.browseResources()
            }
        }
    }
}
