import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.NetworkManager 1.0

// The Wi-Fi networks an administrator approved for users, when they are in range.
PageScaffold {
    id: page

    readonly property var networks: typeof wifiUserAvailable !== "undefined" ? wifiUserAvailable : null

    function refresh() {
        if (networks)
            networks.updateData();
    }

    Component.onCompleted: refresh()

    Timer {
        interval: 5000
        repeat: true
        running: page.visible
        onTriggered: page.refresh()
    }

    NetworkManager {
        id: network
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Available networks")
        subtitle: qsTr("Networks approved by your administrator that are in range.")
        headerActions: [
            SecondaryButton {
                iconName: "refresh"
                text: qsTr("Refresh")
                onClicked: page.refresh()
            }
        ]

        EmptyState {
            Layout.fillWidth: true
            visible: userRepeater.count === 0
            compact: true
            iconName: "wifi"
            title: qsTr("No approved network in range")
            message: qsTr("Ask your administrator to approve a network for users.")
        }

        Repeater {
            id: userRepeater
            model: page.networks

            delegate: SettingsRow {
                id: row
                Layout.fillWidth: true
                iconName: model.active ? "success" : "wifi"
                title: model.name
                description: model.active ? qsTr("Connected") : qsTr("Not connected")

                SecondaryButton {
                    text: model.active ? qsTr("Disconnect") : qsTr("Connect")
                    onClicked: {
                        var name = model.name;
                        var active = model.active;
                        busy.run(active ? qsTr("Disconnecting from %1…").arg(name) : qsTr("Connecting to %1…").arg(name), function () {
                            if (active)
                                network.disconnectWifi(name);
                            else
                                network.reconnectToWifi(name);
                            page.refresh();
                        });
                    }
                }
            }
        }
    }

    BusyOverlay {
        id: busy
        parent: page
    }
}
