import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.USBManager 1.0

PageScaffold {
    id: page

    property var names: []
    property var descriptors: []

    function load() {
        storageRow.checked = usb.isUsbEnabled();
        names = usb.listUsbNames();
        descriptors = usb.listUsbDescriptors();
    }

    Component.onCompleted: load()

    USBManager {
        id: usb
    }

    Card {
        Layout.fillWidth: true
        padding: Theme.spacingS

        SwitchRow {
            id: storageRow
            Layout.fillWidth: true
            iconName: "usb"
            title: qsTr("USB storage")
            description: qsTr("USB drives plugged into this terminal are opened and can be used in sessions.")
            onToggled: {
                usb.setUsbEnabled(checked);
                checked = usb.isUsbEnabled();
                toast.show(checked ? qsTr("USB storage is on.") : qsTr("USB storage is off."), "info");
            }
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("USB devices")
        subtitle: qsTr("Everything connected to this terminal's USB ports.")
        headerActions: [
            SecondaryButton {
                iconName: "refresh"
                text: qsTr("Refresh")
                onClicked: page.load()
            }
        ]

        Repeater {
            model: page.names

            Rectangle {
                Layout.fillWidth: true
                implicitHeight: 44
                color: index % 2 === 0 ? Theme.surfaceAlt : Theme.surface
                radius: Theme.radiusS

                RowLayout {
                    anchors.fill: parent
                    anchors.leftMargin: Theme.spacingM
                    anchors.rightMargin: Theme.spacingM
                    spacing: Theme.spacingM

                    Text {
                        Layout.fillWidth: true
                        text: modelData !== "" ? modelData : qsTr("Unnamed device")
                        color: modelData !== "" ? Theme.text : Theme.textMuted
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontBody
                        elide: Text.ElideRight
                    }
                    Text {
                        text: page.descriptors[index] || ""
                        color: Theme.textMuted
                        font.family: Theme.monoFamily
                        font.pixelSize: Theme.fontSmall
                    }
                }
            }
        }

        EmptyState {
            Layout.fillWidth: true
            visible: page.names.length === 0
            compact: true
            iconName: "usb"
            title: qsTr("No USB devices found")
        }
    }

    Toast {
        id: toast
    }
}
