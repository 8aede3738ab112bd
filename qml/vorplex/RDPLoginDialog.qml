import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.ConnectionManager 1.0
import com.rdp.ConnectDialogBackend 1.0

// Asks for the credentials a Remote Desktop record does not store, then starts it with them.
// Nothing typed here is saved.
ModalDialog {
    id: dialog

    property int connectionIndex: -1
    property string connectionName
    property string serverAddress

    // Emitted when the session could not be started at all.
    signal failed()

    function openFor(index) {
        if (index < 0)
            return;
        var record = ConnectionManager.getConnection(index);
        connectionIndex = index;
        connectionName = record.name;
        serverAddress = record.address;
        userField.clear();
        passwordField.clear();
        userField.text = record.get("username");
        open();
    }

    title: qsTr("Sign in")
    message: {
        if (connectionName === "")
            return qsTr("Enter your user name and password to start the session.");
        if (serverAddress === "")
            return qsTr("Enter your user name and password for \u201c%1\u201d.").arg(connectionName);
        return qsTr("Enter your user name and password for \u201c%1\u201d on %2.").arg(connectionName).arg(serverAddress);
    }
    okText: qsTr("Connect")
    closeOnOk: false

    onOpened: {
        if (userField.text === "")
            userField.focusInput();
        else
            passwordField.focusInput();
    }

    onOkClicked: {
        if (userField.text.trim() === "") {
            userField.errorText = qsTr("User name can't be empty");
            userField.focusInput();
            return;
        }
        var started = backend.connect(dialog.connectionIndex, userField.text.trim(), passwordField.text);
        passwordField.clear();
        dialog.accept();
        if (!started)
            dialog.failed();
    }

    onClosed: passwordField.clear()

    RDPConnectDialogBackend {
        id: backend
    }

    FormField {
        id: userField
        Layout.fillWidth: true
        label: qsTr("User name")
        input.inputMethodHints: Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText
        onEdited: errorText = ""
        onAccepted: passwordField.focusInput()
    }

    PasswordField {
        id: passwordField
        Layout.fillWidth: true
        label: qsTr("Password")
        onAccepted: dialog.ok()
    }
}
