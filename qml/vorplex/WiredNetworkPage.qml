import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.NetworkManager 1.0

PageScaffold {
    id: page

    property var interfaces: []
    property bool manual: false
    readonly property string currentInterface: ifaceBox.currentIndex >= 0 && ifaceBox.currentIndex < interfaces.length
                                               ? interfaces[ifaceBox.currentIndex] : ""

    function loadInterfaces() {
        interfaces = network.listInterfaces();
        ifaceBox.currentIndex = interfaces.length > 0 ? 0 : -1;
        loadInterface();
    }

    // What NetworkManager reports now for the chosen interface, and the form filled from it.
    function loadInterface() {
        if (currentInterface === "")
            return;
        network.update(currentInterface);
        manual = network.getConnectionType(currentInterface) === 1;
        modeControl.currentIndex = manual ? 1 : 0;
        addressValue.description = network.getIP() !== "" ? network.getIP() : qsTr("None");
        maskValue.description = network.getSubnetMask() !== "" ? network.getSubnetMask() : qsTr("None");
        gatewayValue.description = network.getGateway() !== "" ? network.getGateway() : qsTr("None");
        var dns = [network.getDNS1(), network.getDNS2(), network.getDNS3()].filter(function (d) { return d !== ""; });
        dnsValue.description = dns.length > 0 ? dns.join(", ") : qsTr("None");
        ipField.text = network.getIP();
        maskField.text = network.getSubnetMask();
        gatewayField.text = network.getGateway();
        dns1Field.text = network.getDNS1();
        dns2Field.text = network.getDNS2();
        dns3Field.text = network.getDNS3();
        for (var f of [ipField, maskField, gatewayField, dns1Field, dns2Field, dns3Field])
            f.errorText = "";
    }

    function check(field, valid, message) {
        field.errorText = valid ? "" : message;
        return valid;
    }

    function validForm() {
        if (!manual)
            return true;
        var ok = check(ipField, network.isValidAddress(ipField.text.trim()), qsTr("Enter an address such as 192.168.1.20."));
        ok = check(maskField, network.isValidMask(maskField.text.trim()), qsTr("Enter a mask such as 255.255.255.0.")) && ok;
        ok = check(gatewayField, network.isValidGateway(gatewayField.text.trim()), qsTr("Enter an address, or leave it empty.")) && ok;
        for (var f of [dns1Field, dns2Field, dns3Field])
            ok = check(f, f.text.trim() === "" || network.isValidAddress(f.text.trim()), qsTr("Enter an address, or leave it empty.")) && ok;
        return ok;
    }

    function apply() {
        if (currentInterface === "" || !validForm())
            return;
        busy.run(qsTr("Applying the settings of %1…").arg(currentInterface), function () {
            network.setConnectionType(manual ? 1 : 0);
            if (manual) {
                network.setIP(ipField.text.trim());
                network.setSubnetMask(maskField.text.trim());
                network.setGateway(gatewayField.text.trim());
                network.setDNS(dns1Field.text.trim(), dns2Field.text.trim(), dns3Field.text.trim());
            } else {
                network.setDNS("", "", "");
            }
            network.apply();
            loadInterface();
            toast.show(qsTr("Settings applied. The interface now reports the values shown."), "success");
        });
    }

    Component.onCompleted: loadInterfaces()

    NetworkManager {
        id: network
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Interface")
        subtitle: qsTr("The network adapter to configure and what it reports now.")
        headerActions: [
            SecondaryButton {
                iconName: "refresh"
                text: qsTr("Refresh")
                onClicked: page.loadInterface()
            }
        ]

        FormComboBox {
            id: ifaceBox
            Layout.fillWidth: true
            Layout.maximumWidth: 440
            label: qsTr("Interface")
            model: page.interfaces
            placeholderText: qsTr("No network interface found")
            onActivated: page.loadInterface()
        }

        GridLayout {
            Layout.fillWidth: true
            columns: page.columnWidth > 700 ? 2 : 1
            columnSpacing: Theme.spacingL
            rowSpacing: 0

            SettingsRow { id: addressValue; Layout.fillWidth: true; iconName: "network"; title: qsTr("Address") }
            SettingsRow { id: maskValue; Layout.fillWidth: true; iconName: "grid"; title: qsTr("Subnet mask") }
            SettingsRow { id: gatewayValue; Layout.fillWidth: true; iconName: "arrow-right"; title: qsTr("Gateway") }
            SettingsRow { id: dnsValue; Layout.fillWidth: true; iconName: "server"; title: qsTr("DNS servers") }
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("IPv4 addressing")
        subtitle: qsTr("Automatic takes address, gateway and DNS from the network's DHCP server.")

        SegmentedControl {
            id: modeControl
            model: [qsTr("Automatic (DHCP)"), qsTr("Manual")]
            onActivated: page.manual = index === 1
        }

        GridLayout {
            Layout.fillWidth: true
            Layout.topMargin: Theme.spacingS
            visible: page.manual
            columns: page.columnWidth > 700 ? 2 : 1
            columnSpacing: Theme.spacingL
            rowSpacing: Theme.spacingS

            FormField { id: ipField; objectName: "ipField"; Layout.fillWidth: true; label: qsTr("Address"); placeholderText: "192.168.1.20"; onEdited: errorText = "" }
            FormField { id: maskField; objectName: "maskField"; Layout.fillWidth: true; label: qsTr("Subnet mask"); placeholderText: "255.255.255.0"; onEdited: errorText = "" }
            FormField { id: gatewayField; objectName: "gatewayField"; Layout.fillWidth: true; label: qsTr("Gateway"); placeholderText: "192.168.1.1"; onEdited: errorText = "" }
            FormField { id: dns1Field; objectName: "dns1Field"; Layout.fillWidth: true; label: qsTr("DNS server 1"); onEdited: errorText = "" }
            FormField { id: dns2Field; objectName: "dns2Field"; Layout.fillWidth: true; label: qsTr("DNS server 2"); onEdited: errorText = "" }
            FormField { id: dns3Field; objectName: "dns3Field"; Layout.fillWidth: true; label: qsTr("DNS server 3"); onEdited: errorText = "" }
        }

        PrimaryButton {
            Layout.topMargin: Theme.spacingS
            iconName: "check"
            text: qsTr("Apply")
            enabled: page.currentInterface !== ""
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
