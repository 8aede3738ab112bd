import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.rdp.ConnectDialogBackend 1.0

// Adds a Remote Desktop connection, or edits the one at connectionIndex.
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
        addressField.text = backend.getAddress();
        userField.text = backend.getUsername();
        passwordField.text = backend.getPassword();
        domainField.text = backend.getDomain();
        rememberBox.checked = userField.text !== "" || passwordField.text !== "";
        fullscreenRow.checked = backend.isFullscreen();
        multimonRow.checked = backend.isMultiScreen();
        smartcardRow.checked = backend.useSmartCard();
        usbRow.checked = backend.getForwardUsb();
        printerRow.checked = backend.usePrinter();
        gatewayField.text = backend.getAdditionalString("gateway");
        gatewayUserField.text = backend.getAdditionalString("gateway_user");
        gatewayDomainField.text = backend.getAdditionalString("gateway_domain");
        gatewayPasswordField.text = backend.getAdditionalString("gateway_password");
        performanceChoice.currentIndex = backend.getPerformance() === 1 ? 1 : 0;
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

    title: editing ? qsTr("Edit RDP Connection") : qsTr("Add RDP Connection")
    subtitle: editing ? loadedName : qsTr("A Windows desktop or server reached over Remote Desktop.")
    iconName: "remote-desktop"
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
        backend.setFlag("fullscreen", fullscreenRow.checked);
        backend.setFlag("multimon", multimonRow.checked);
        backend.setFlag("smartcard", smartcardRow.checked);
        backend.setFlag("usb", usbRow.checked);
        backend.setFlag("printer", printerRow.checked);
        backend.addAdditional("gateway", gatewayField.text.trim());
        backend.addAdditional("gateway_user", gatewayUserField.text.trim());
        backend.addAdditional("gateway_domain", gatewayDomainField.text.trim());
        backend.addAdditional("gateway_password", gatewayPasswordField.text);
        backend.addIntValue("performance", performanceChoice.currentIndex);
        if (editing)
            backend.updateConnectionInFile(connectionIndex, name, addressField.text.trim(), rememberBox.checked,
                                           userField.text.trim(), passwordField.text, domainField.text.trim());
        else
            backend.addConnection(name, addressField.text.trim(), rememberBox.checked,
                                  userField.text.trim(), passwordField.text, domainField.text.trim());
        form.saved(name);
    }

    RDPConnectDialogBackend {
        id: backend
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Connection")
        headerActions: [
            TestConnectionButton {
                kindName: "rdp"
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
                placeholderText: qsTr("Host name or IP address")
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
            text: rememberBox.checked ? qsTr("The session starts without asking for a password.")
                                      : qsTr("User name and password are asked for each time the session starts.")
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
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Session")
        spacing: 0

        SwitchRow {
            id: fullscreenRow
            Layout.fillWidth: true
            Layout.leftMargin: -Theme.spacingL
            Layout.rightMargin: -Theme.spacingL
            title: qsTr("Full screen")
            description: qsTr("The session fills the whole screen.")
        }

        SwitchRow {
            id: multimonRow
            Layout.fillWidth: true
            Layout.leftMargin: -Theme.spacingL
            Layout.rightMargin: -Theme.spacingL
            title: qsTr("Multi-monitor")
            description: qsTr("The session spans every connected display.")
        }

        SwitchRow {
            id: smartcardRow
            Layout.fillWidth: true
            Layout.leftMargin: -Theme.spacingL
            Layout.rightMargin: -Theme.spacingL
            title: qsTr("Smart card")
            description: qsTr("Sign in to the session with a smart card in this terminal's reader.")
        }

        SwitchRow {
            id: usbRow
            Layout.fillWidth: true
            Layout.leftMargin: -Theme.spacingL
            Layout.rightMargin: -Theme.spacingL
            title: qsTr("USB redirection")
            description: qsTr("USB devices plugged into this terminal appear in the session.")
        }

        SwitchRow {
            id: printerRow
            Layout.fillWidth: true
            Layout.leftMargin: -Theme.spacingL
            Layout.rightMargin: -Theme.spacingL
            title: qsTr("Printer")
            description: qsTr("Printers set up on this terminal can be used from the session.")
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Gateway")
        subtitle: qsTr("Only needed when the server is reached through a Remote Desktop Gateway.")

        GridLayout {
            Layout.fillWidth: true
            columns: width >= 520 ? 2 : 1
            columnSpacing: Theme.spacingL
            rowSpacing: Theme.spacingS

            FormField {
                id: gatewayField
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                label: qsTr("Gateway host")
                placeholderText: qsTr("Host name or IP address")
                input.inputMethodHints: Qt.ImhUrlCharactersOnly | Qt.ImhNoAutoUppercase
                onAccepted: form.submitted()
            }

            FormField {
                id: gatewayUserField
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                label: qsTr("Gateway user name")
                input.inputMethodHints: Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText
                onAccepted: form.submitted()
            }

            FormField {
                id: gatewayDomainField
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                label: qsTr("Gateway domain")
                placeholderText: qsTr("Optional")
                onAccepted: form.submitted()
            }

            PasswordField {
                id: gatewayPasswordField
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                label: qsTr("Gateway password")
                onAccepted: form.submitted()
            }
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Performance")
        subtitle: qsTr("Best quality suits fast networks; Fastest lowers colour depth and effects for slow links.")

        SegmentedControl {
            id: performanceChoice
            Layout.fillWidth: true
            Layout.maximumWidth: 360
            model: [qsTr("Best quality"), qsTr("Fastest")]
        }
    }
}
