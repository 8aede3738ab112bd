import QtQuick 2.15
import QtQuick.Templates 2.15 as T
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.vnc.ConnectDialogBackend 1.0

// Adds a VNC connection, shown in the shell's own viewer, or edits the one at connectionIndex.
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
        passwordField.text = backend.getPassword();
        rememberBox.checked = passwordField.text !== "";
        fullscreenRow.checked = backend.isFullscreen();
        shrinkRow.checked = backend.isShrink();
        sizeSlider.value = backend.getPercentage();
    }

    // A host, optionally followed by a colon and a port from 1 to 65535.
    function addressError(address) {
        if (address === "")
            return qsTr("Server address can't be empty");
        var match = /^([^:\s]+)(?::(\d+))?$/.exec(address);
        if (!match)
            return qsTr("Enter a host name or IP address, optionally followed by a colon and a port");
        if (match[2] !== undefined && (Number(match[2]) < 1 || Number(match[2]) > 65535))
            return qsTr("The port must be a number from 1 to 65535");
        return "";
    }

    function validate() {
        nameField.errorText = nameField.text.trim() === "" ? qsTr("Connection name can't be empty") : "";
        addressField.errorText = addressError(addressField.text.trim());
        var invalid = nameField.errorText !== "" ? nameField : addressField.errorText !== "" ? addressField : null;
        if (invalid) {
            form.reveal(invalid);
            invalid.focusInput();
            return false;
        }
        return true;
    }

    title: editing ? qsTr("Edit VNC Connection") : qsTr("Add VNC Connection")
    subtitle: editing ? loadedName : qsTr("A remote screen shown in this terminal's own VNC viewer.")
    iconName: "screen-share"
    submitText: editing ? qsTr("Save") : qsTr("Add connection")

    Component.onCompleted: {
        if (editing) {
            load();
        } else {
            // The viewer cannot ask for a password later, so keeping it is the useful default.
            rememberBox.checked = true;
            nameField.focusInput();
        }
    }

    onSubmitted: {
        if (!validate())
            return;
        var name = nameField.text.trim();
        var percentage = Math.round(sizeSlider.value);
        if (editing)
            backend.replaceConnection(connectionIndex, name, addressField.text.trim(), passwordField.text,
                                      rememberBox.checked, fullscreenRow.checked, shrinkRow.checked, percentage);
        else
            backend.addConnection(name, addressField.text.trim(), passwordField.text, rememberBox.checked,
                                  fullscreenRow.checked, shrinkRow.checked, percentage);
        form.saved(name);
    }

    VNCConnectDialogBackend {
        id: backend
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Connection")
        headerActions: [
            TestConnectionButton {
                kindName: "vnc"
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
            objectName: "nameField"
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
            objectName: "addressField"
                Layout.fillWidth: true
                Layout.alignment: Qt.AlignTop
                Layout.preferredWidth: 1
                label: qsTr("Server address")
                placeholderText: qsTr("host or host:port")
                hintText: qsTr("Port 5900 when none is given")
                input.inputMethodHints: Qt.ImhUrlCharactersOnly | Qt.ImhNoAutoUppercase
                onEdited: errorText = ""
                onAccepted: form.submitted()
            }
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Password")

        NxCheckBox {
            id: rememberBox
            objectName: "rememberBox"
            Layout.fillWidth: true
            text: qsTr("Remember password")
        }

        FieldMessage {
            Layout.fillWidth: true
            Layout.topMargin: -Theme.spacingS
            isError: false
            text: rememberBox.checked ? qsTr("The password is stored encrypted on this terminal.")
                                      : qsTr("The password is not stored; servers that ask for one refuse the session.")
        }

        PasswordField {
            id: passwordField
            objectName: "passwordField"
            Layout.fillWidth: true
            Layout.maximumWidth: 420
            label: qsTr("Password")
            enabled: rememberBox.checked
            onAccepted: form.submitted()
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Viewer window")
        spacing: 0

        SwitchRow {
            id: fullscreenRow
            objectName: "fullscreenRow"
            Layout.fillWidth: true
            Layout.leftMargin: -Theme.spacingL
            Layout.rightMargin: -Theme.spacingL
            title: qsTr("Full screen")
            description: qsTr("The remote screen fills the whole display.")
        }

        SwitchRow {
            id: shrinkRow
            objectName: "shrinkRow"
            Layout.fillWidth: true
            Layout.leftMargin: -Theme.spacingL
            Layout.rightMargin: -Theme.spacingL
            title: qsTr("Shrink to fit")
            description: qsTr("Large remote screens are scaled down to the window instead of scrolled.")
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.topMargin: Theme.spacingM
            spacing: Theme.spacingL

            ColumnLayout {
                Layout.fillWidth: true
                spacing: 2

                FieldLabel {
                    Layout.fillWidth: true
                    text: qsTr("Window size")
                }
                FieldMessage {
                    Layout.fillWidth: true
                    isError: false
                    text: qsTr("Share of this terminal's screen taken by the viewer window, from its top left corner.")
                }
            }

            NxSlider {
                id: sizeSlider
            objectName: "sizeSlider"
                Layout.preferredWidth: 260
                Layout.maximumWidth: 320
                from: 10
                to: 100
                stepSize: 5
                snapMode: T.Slider.SnapAlways
                value: 100
                Accessible.name: qsTr("Window size")
            }

            Text {
                Layout.preferredWidth: 48
                horizontalAlignment: Text.AlignRight
                text: qsTr("%1 %").arg(Math.round(sizeSlider.value))
                font.family: Theme.fontFamily
                font.pixelSize: Theme.fontBody
                color: Theme.text
            }
        }
    }
}
