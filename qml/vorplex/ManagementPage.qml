import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.APIManager 1.0

PageScaffold {
    id: page

    function load() {
        managedRow.checked = APIManager.isEnabled();
        urlField.text = APIManager.getUrl();
        accountField.text = APIManager.getAccount();
        nameField.text = APIManager.getId();
    }

    function applyServer() {
        urlField.errorText = "";
        var url = urlField.text.trim();
        if (!/^wss?:\/\/[^\s\/:]+(:\d+)?(\/\S*)?$/.test(url)) {
            urlField.errorText = qsTr("Enter an address such as wss://server.example.com/api/v1/ws.");
            return;
        }
        if (url !== APIManager.getUrl())
            APIManager.setManagedUrl(url);
        if (accountField.text.trim() !== APIManager.getAccount())
            APIManager.setAccount(accountField.text.trim());
        load();
        toast.show(qsTr("Server settings saved."), "success");
    }

    function applyName() {
        nameField.errorText = "";
        var name = nameField.text.trim();
        if (name !== "" && !/^[A-Za-z0-9]([A-Za-z0-9-]{0,61}[A-Za-z0-9])?$/.test(name)) {
            nameField.errorText = qsTr("Use letters, digits and hyphens only (at most 63).");
            return;
        }
        APIManager.setId(name);
        load();
        toast.show(qsTr("Computer name set to %1.").arg(nameField.text), "success");
    }

    function applyVncPassword() {
        vncField.errorText = "";
        if (vncField.text.length < 6) {
            vncField.errorText = qsTr("Use at least 6 characters.");
            return;
        }
        APIManager.setVNCPassword(vncField.text);
        vncField.clear();
        toast.show(qsTr("Remote assistance password set."), "success");
    }

    Component.onCompleted: load()

    Card {
        Layout.fillWidth: true
        padding: Theme.spacingS

        SwitchRow {
            id: managedRow
            Layout.fillWidth: true
            iconName: "server"
            title: qsTr("Managed by a server")
            description: qsTr("The management server can change settings, connections and certificates, and update or restart this terminal.")
            onToggled: {
                APIManager.setManaged(checked ? 1 : 0);
                managedRow.checked = APIManager.isEnabled();
            }
        }

        SettingsRow {
            Layout.fillWidth: true
            iconName: !managedRow.checked ? "info" : APIManager.connected ? "success" : "warning"
            title: qsTr("Connection")
            description: !managedRow.checked ? qsTr("Not managed")
                        : APIManager.connected ? qsTr("Connected to the management server")
                        : qsTr("Not connected; the terminal keeps trying")
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Server")
        subtitle: qsTr("Where the terminal registers and which account it belongs to.")

        FormField {
            id: urlField
            Layout.fillWidth: true
            label: qsTr("Server address")
            placeholderText: "wss://server.example.com/api/v1/ws"
            onEdited: errorText = ""
            onAccepted: page.applyServer()
        }

        FormField {
            id: accountField
            Layout.fillWidth: true
            Layout.maximumWidth: 440
            label: qsTr("Account")
            placeholderText: qsTr("Organisation account on the server")
            onAccepted: page.applyServer()
        }

        PrimaryButton {
            Layout.topMargin: Theme.spacingS
            iconName: "check"
            text: qsTr("Save server settings")
            onClicked: page.applyServer()
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Computer name")
        subtitle: qsTr("The name of this terminal on the server and on the network. Leave it empty to use the name made from the network adapter.")

        FormField {
            id: nameField
            Layout.fillWidth: true
            Layout.maximumWidth: 440
            label: qsTr("Name")
            onEdited: errorText = ""
            onAccepted: page.applyName()
        }

        SecondaryButton {
            Layout.topMargin: Theme.spacingS
            text: qsTr("Set name")
            onClicked: page.applyName()
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Remote assistance")
        subtitle: qsTr("Password of this terminal's screen sharing, used when an administrator connects for support.")

        PasswordField {
            id: vncField
            Layout.fillWidth: true
            Layout.maximumWidth: 440
            label: qsTr("New password")
            onEdited: errorText = ""
            onAccepted: page.applyVncPassword()
        }

        SecondaryButton {
            Layout.topMargin: Theme.spacingS
            iconName: "key"
            text: qsTr("Set password")
            onClicked: page.applyVncPassword()
        }
    }

    Toast {
        id: toast
    }
}
