import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.PasswordManager 1.0

ModalDialog {
    id: dialog

    signal unlocked()

    title: qsTr("Administrator access")
    message: qsTr("Advanced settings are protected. Enter the administrator password to unlock them.")
    okText: qsTr("Unlock")
    closeOnOk: false

    onAboutToShow: field.clear()
    onOpened: field.focusInput()

    onOkClicked: {
        if (field.text === passwords.getPassword()) {
            dialog.accept();
            dialog.unlocked();
        } else {
            field.errorText = qsTr("Wrong password. Please try again.");
            field.input.selectAll();
            field.focusInput();
        }
    }

    PasswordManager {
        id: passwords
    }

    PasswordField {
        id: field
        Layout.fillWidth: true
        label: qsTr("Administrator password")
        onAccepted: dialog.ok()
        onEdited: errorText = ""
    }
}
