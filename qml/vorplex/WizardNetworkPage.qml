import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.NetworkManager 1.0

// The wizard's network step: the wired address as the terminal has it now, and the way to Wi-Fi.
PageScaffold {
    id: page

    property string wiredAddress: ""

    signal wifiRequested()

    function refresh() {
        wiredAddress = network.getEthernetIp();
    }

    Component.onCompleted: refresh()

    NetworkManager {
        id: network
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Wired network")
        subtitle: qsTr("A network cable brings this terminal online without further settings.")
        headerActions: [
            SecondaryButton {
                iconName: "refresh"
                text: qsTr("Refresh")
                onClicked: page.refresh()
            }
        ]

        SettingsRow {
            Layout.fillWidth: true
            iconName: page.wiredAddress !== "" ? "success" : "network"
            title: page.wiredAddress !== "" ? qsTr("Connected") : qsTr("Not connected")
            description: page.wiredAddress !== "" ? qsTr("Address %1").arg(page.wiredAddress)
                                                  : qsTr("Plug in a network cable, or join a Wi-Fi network below.")
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Wi-Fi")
        subtitle: qsTr("Join a wireless network when there is no cable.")

        PrimaryButton {
            iconName: "wifi"
            text: qsTr("Choose a Wi-Fi network\u2026")
            onClicked: page.wifiRequested()
        }
    }
}
