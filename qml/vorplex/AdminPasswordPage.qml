import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.PasswordManager 1.0

PageScaffold {
    id: page

    function submit() {
        currentField.errorText = "";
        newField.errorText = "";
        repeatField.errorText = "";

        var valid = true;
        if (currentField.text !== passwords.getPassword()) {
            currentField.errorText = qsTr("The current password is not correct.");
            valid = false;
        }
        if (newField.text === "") {
            newField.errorText = qsTr("Enter a new password.");
            valid = false;
        } else if (repeatField.text !== newField.text) {
            repeatField.errorText = qsTr("The passwords do not match.");
            valid = false;
        }
        if (!valid)
            return;

        passwords.setPassword(newField.text);
        currentField.clear();
        newField.clear();
        repeatField.clear();
        toast.show(qsTr("Administrator password changed."), "success");
    }

    PasswordManager {
        id: passwords
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Change administrator password")
        subtitle: qsTr("Anyone who knows this password can change the advanced settings of this terminal.")

        PasswordField {
            id: currentField
            Layout.fillWidth: true
            Layout.maximumWidth: 440
            label: qsTr("Current password")
            onEdited: errorText = ""
            onAccepted: newField.focusInput()
        }

        PasswordField {
            id: newField
            Layout.fillWidth: true
            Layout.maximumWidth: 440
            label: qsTr("New password")
            onEdited: errorText = ""
            onAccepted: repeatField.focusInput()
        }

        PasswordField {
            id: repeatField
            Layout.fillWidth: true
            Layout.maximumWidth: 440
            label: qsTr("Repeat new password")
            onEdited: errorText = ""
            onAccepted: page.submit()
        }

        PrimaryButton {
            Layout.topMargin: Theme.spacingS
            iconName: "check"
            text: qsTr("Change password")
            onClicked: page.submit()
        }
    }

    Toast {
        id: toast
    }
}
