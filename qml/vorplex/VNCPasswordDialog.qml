import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.ConnectionManager 1.0
import com.VNCPasswordBackend 1.0

// Asks for the password of a VNC record stored without one, then starts it. Nothing is saved.
ModalDialog {
    id: dialog

    property int connectionIndex: -1
    property string connectionName

    signal failed()

    // A VNC record without a stored password gets this prompt rather than the RDP sign-in.
    function needsPrompt(index) {
        return backend.needsPrompt(index);
    }

    function openFor(index) {
        if (index < 0)
            return;
        connectionIndex = index;
        connectionName = ConnectionManager.getConnection(index).name;
        passwordField.clear();
        open();
    }

    title: qsTr("VNC password")
    message: connectionName !== "" ? qsTr("Enter the VNC password for \u201c%1\u201d.").arg(connectionName)
                                   : qsTr("Enter the VNC password to start the session.")
    okText: qsTr("Connect")
    closeOnOk: false

    onOpened: passwordField.focusInput()
    onClosed: passwordField.clear()

    onOkClicked: {
        if (passwordField.text === "") {
            passwordField.errorText = qsTr("Password can't be empty");
            passwordField.focusInput();
            return;
        }
        var started = backend.connect(dialog.connectionIndex, passwordField.text);
        passwordField.clear();
        dialog.accept();
        if (!started)
            dialog.failed();
    }

    VNCPasswordBackend {
        id: backend
    }

    PasswordField {
        id: passwordField
        Layout.fillWidth: true
        label: qsTr("Password")
        onEdited: errorText = ""
        onAccepted: dialog.ok()
    }
}
