import QtQuick 2.15
import NorbixUi 1.0

// "Test connection" in a connection form: checks the address as typed, without saving anything.
SecondaryButton {
    id: button

    // "rdp", "vnc", "citrix", "vmware" or "putty", as ConnectionKinds names them.
    property string kindName
    property string address

    iconName: "network"
    text: qsTr("Test connection")
    onClicked: checkDialog.checkAddress(kinds[button.kindName], button.address)

    ConnectionKinds {
        id: kinds
    }

    ConnectionCheckDialog {
        id: checkDialog
    }
}
