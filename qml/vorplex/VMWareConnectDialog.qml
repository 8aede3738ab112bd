import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.vmware.ConnectDialogBackend 1.0

// Adds a VMware Horizon connection, or edits the one at connectionIndex.
FormPage {
    id: form

    property int connectionIndex: -1
    readonly property bool editing: connectionIndex >= 0
    property string loadedName
    // Stored as written here, in this order.
    readonly property var protocols: ["PCOIP", "BLAST", "RDP"]

    signal saved(string name)

    function load() {
        backend.loadConnection(connectionIndex);
        loadedName = backend.getConnectionName();
        nameField.text = loadedName;
        addressField.text = backend.getAddress();
        var protocol = protocols.indexOf(backend.getProtocol());
        protocolField.currentIndex = protocol >= 0 ? protocol : 0;
        userField.text = backend.getUsername();
        passwordField.text = backend.getPassword();
        rememberBox.checked = userField.text !== "" || passwordField.text !== "";
        domainField.text = backend.getDomain();
        desktopField.text = backend.getDesktop();
    }

    function validate() {
        nameField.errorText = nameField.text.trim() === "" ? qsTr("Connection name can't be empty") : "";
        addressField.errorText = addressField.text.trim() === "" ? qsTr("Server address can't be empty") : "";
        var invalid = nameField.errorText !== "" ? nameField : addressField.errorText !== "" ? addressField : null;
        if (invalid) {
            form.reveal(invalid);
            invalid.focusInput();
            return false;
        }
        return true;
    }

    title: editing ? qsTr("Edit VMWare Horizon Connection") : qsTr("Add VMWare Horizon Connection")
    subtitle: editing ? loadedName : qsTr("A virtual desktop from a VMware Horizon connection server.")
    iconName: "layers"
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
        var protocol = protocols[Math.max(0, protocolField.currentIndex)];
        if (editing)
            backend.replaceConnection(connectionIndex, name, addressField.text.trim(), protocol, rememberBox.checked,
                                      userField.text.trim(), passwordField.text, domainField.text.trim(),
                                      desktopField.text.trim());
        else
            backend.addConnection(name, addressField.text.trim(), protocol, rememberBox.checked, userField.text.trim(),
                                  passwordField.text, domainField.text.trim(), desktopField.text.trim());
        form.saved(name);
    }

    VMWareConnectDialogBackend {
        id: backend
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Connection")
        headerActions: [
            TestConnectionButton {
                kindName: "vmware"
                address: addressField.text
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
                id: addressField
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                label: qsTr("Server address")
                placeholderText: qsTr("Connection server, e.g. horizon.example.com")
                input.inputMethodHints: Qt.ImhUrlCharactersOnly | Qt.ImhNoAutoUppercase
                onEdited: errorText = ""
                onAccepted: form.submitted()
            }

            FormComboBox {
                id: protocolField
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                label: qsTr("Protocol")
                model: form.protocols
                hintText: qsTr("Display protocol of the desktop session.")
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
                                      : qsTr("User name and password are not saved with the connection.")
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

            FormField {
                id: domainField
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                label: qsTr("Domain")
                placeholderText: qsTr("Optional")
                onAccepted: form.submitted()
            }

            FormField {
                id: desktopField
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                label: qsTr("Desktop")
                placeholderText: qsTr("Optional: the desktop pool to open")
                onAccepted: form.submitted()
            }
        }
    }
}
