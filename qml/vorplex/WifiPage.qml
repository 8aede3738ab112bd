import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.NetworkManager 1.0

PageScaffold {
    id: page

    readonly property var available: typeof wifiAvailableModel !== "undefined" ? wifiAvailableModel : null
    readonly property var saved: typeof wifiSavedModel !== "undefined" ? wifiSavedModel : null
    property bool hardware: true
    property string activeName: ""
    property string pendingSsid: ""

    function refresh() {
        hardware = network.isWifiAvailable();
        radioRow.checked = network.isWifiEnabled();
        activeName = network.getActiveNetworkName();
        if (available)
            available.updateData();
        if (saved)
            saved.updateData();
    }

    function join(row) {
        var ssid = available.getName(row);
        if (!available.isSecured(row)) {
            busy.run(qsTr("Connecting to %1…").arg(ssid), function () {
                network.connectToWifi(ssid, "");
                refresh();
            });
            return;
        }
        pendingSsid = ssid;
        passwordField.clear();
        passwordDialog.open();
        passwordField.focusInput();
    }

    Component.onCompleted: refresh()

    // The lists follow the air while the screen is shown.
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
        padding: Theme.spacingS

        SwitchRow {
            id: radioRow
            Layout.fillWidth: true
            enabled: page.hardware
            iconName: "wifi"
            title: qsTr("Wi-Fi")
            description: page.hardware ? (checked ? qsTr("The radio is on.") : qsTr("The radio is off."))
                                       : qsTr("This terminal has no Wi-Fi adapter.")
            onToggled: {
                var on = checked;
                busy.run(on ? qsTr("Switching the radio on…") : qsTr("Switching the radio off…"), function () {
                    network.setWifiEnabled(on);
                    page.refresh();
                });
            }
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Networks in range")
        subtitle: qsTr("Hidden networks are listed under the address of their access point.")
        headerActions: [
            SecondaryButton {
                iconName: "refresh"
                text: qsTr("Refresh")
                onClicked: page.refresh()
            }
        ]

        EmptyState {
            Layout.fillWidth: true
            visible: availableRepeater.count === 0
            compact: true
            iconName: "wifi"
            title: radioRow.checked ? qsTr("No networks found") : qsTr("Wi-Fi is off")
            message: radioRow.checked ? qsTr("The list is refreshed every few seconds.") : qsTr("Switch the radio on to see networks in range.")
        }

        Repeater {
            id: availableRepeater
            model: page.available

            delegate: SettingsRow {
                id: networkRow
                readonly property bool active: model.name === page.activeName
                Layout.fillWidth: true
                iconName: model.security ? "lock" : "wifi"
                title: model.name
                description: (active ? qsTr("Connected") + " · " : "")
                             + qsTr("Signal %1 %").arg(model.strength)
                             + " · " + (model.security ? qsTr("Secured") : qsTr("Open"))

                SecondaryButton {
                    visible: !networkRow.active
                    text: qsTr("Connect")
                    onClicked: page.join(index)
                }
                SecondaryButton {
                    visible: networkRow.active
                    text: qsTr("Disconnect")
                    onClicked: {
                        var ssid = model.name;
                        busy.run(qsTr("Disconnecting from %1…").arg(ssid), function () {
                            network.disconnectWifi(ssid);
                            page.refresh();
                        });
                    }
                }
            }
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Saved networks")
        subtitle: qsTr("Networks shown for users appear on the user's Wi-Fi list; one network can connect by itself at start.")

        RowLayout {
            Layout.fillWidth: true
            visible: savedRepeater.count > 0
            spacing: Theme.spacingM

            Repeater {
                model: [qsTr("NAME"), qsTr("AUTO CONNECT"), qsTr("SHOW FOR USER"), qsTr("OPTIONS")]
                delegate: Text {
                    Layout.fillWidth: index === 0
                    Layout.preferredWidth: index === 0 ? 200 : 150
                    text: modelData
                    color: Theme.textSecondary
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontCaption
                    font.weight: Font.DemiBold
                    horizontalAlignment: index === 0 ? Text.AlignLeft : Text.AlignHCenter
                    elide: Text.ElideRight
                }
            }
        }

        EmptyState {
            Layout.fillWidth: true
            visible: savedRepeater.count === 0
            compact: true
            iconName: "wifi"
            title: qsTr("No saved networks")
            message: qsTr("Networks this terminal has joined are kept here.")
        }

        Repeater {
            id: savedRepeater
            model: page.saved

            delegate: RowLayout {
                Layout.fillWidth: true
                spacing: Theme.spacingM

                Text {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 200
                    text: model.name
                    color: Theme.text
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontBody
                    font.weight: model.name === page.activeName ? Font.DemiBold : Font.Normal
                    elide: Text.ElideRight
                }
                Item {
                    Layout.preferredWidth: 150
                    implicitHeight: autoBox.implicitHeight
                    NxCheckBox {
                        id: autoBox
                        anchors.centerIn: parent
                        checked: model.autoConnect
                        Accessible.name: qsTr("Connect to %1 at start").arg(model.name)
                        onToggled: page.saved.setAutoConnect(model.name, checked)
                    }
                }
                Item {
                    Layout.preferredWidth: 150
                    implicitHeight: showBox.implicitHeight
                    NxCheckBox {
                        id: showBox
                        anchors.centerIn: parent
                        checked: model.showForUser
                        Accessible.name: qsTr("Show %1 for users").arg(model.name)
                        onToggled: page.saved.setForUser(model.name, checked)
                    }
                }
                Item {
                    Layout.preferredWidth: 150
                    implicitHeight: deleteButton.implicitHeight
                    IconButton {
                        id: deleteButton
                        anchors.centerIn: parent
                        iconName: "trash"
                        text: qsTr("Forget %1").arg(model.name)
                        onClicked: {
                            page.pendingSsid = model.name;
                            forgetDialog.open();
                        }
                    }
                }
            }
        }
    }

    ModalDialog {
        id: passwordDialog
        title: qsTr("Connect to %1").arg(page.pendingSsid)
        message: qsTr("Enter the password of the network %1.").arg(page.pendingSsid)
        okText: qsTr("Connect")
        okEnabled: passwordField.text.length > 0

        PasswordField {
            id: passwordField
            Layout.fillWidth: true
            label: qsTr("Password")
            onAccepted: passwordDialog.ok()
        }

        onOkClicked: {
            var ssid = page.pendingSsid;
            var password = passwordField.text;
            passwordField.clear();
            busy.run(qsTr("Connecting to %1…").arg(ssid), function () {
                network.connectToWifi(ssid, password);
                page.refresh();
            });
        }
    }

    ModalDialog {
        id: forgetDialog
        title: qsTr("Forget network")
        message: qsTr("Forget %1? The terminal will need the password again to join it.").arg(page.pendingSsid)
        okText: qsTr("Forget")
        destructive: true
        onOkClicked: {
            var ssid = page.pendingSsid;
            busy.run(qsTr("Forgetting %1…").arg(ssid), function () {
                page.saved.deleteConnection(ssid);
                page.refresh();
            });
        }
    }

    BusyOverlay {
        id: busy
        parent: page
    }
}
