import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.APIManager 1.0
import com.NetworkManager 1.0

PageScaffold {
    id: page

    property string current: ""

    function load() {
        current = APIManager.getId();
        nameField.text = current;
        nameField.errorText = "";
    }

    function apply() {
        var name = nameField.text.trim();
        // Empty means the name made from the wired adapter's address.
        if (name !== "" && !network.isValidHostName(name)) {
            nameField.errorText = qsTr("Use 1 to 63 letters, digits and hyphens, not starting or ending with a hyphen.");
            return;
        }
        busy.run(qsTr("Setting the computer name…"), function () {
            APIManager.setId(name);
            load();
            toast.show(qsTr("Computer name set to %1.").arg(page.current), "success");
        });
    }

    Component.onCompleted: load()

    NetworkManager {
        id: network
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Computer name: ") + page.current
        subtitle: qsTr("The name of this terminal on the network and on the management server. Leave the field empty to use the name made from the network adapter.")

        FormField {
            id: nameField
            objectName: "nameField"
            Layout.fillWidth: true
            Layout.maximumWidth: 440
            label: qsTr("Computer name")
            maximumLength: 63
            onEdited: errorText = ""
            onAccepted: page.apply()
        }

        PrimaryButton {
            Layout.topMargin: Theme.spacingS
            iconName: "check"
            text: qsTr("Apply")
            onClicked: page.apply()
        }
    }

    BusyOverlay {
        id: busy
        parent: page
    }

    Toast {
        id: toast
    }
}
