import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.PrintersBackend 1.0

PageScaffold {
    id: page

    property var printerList: []
    property string defaultPrinter: ""
    property string pendingDelete: ""
    property var usbDevices: []
    property var drivers: []
    property bool usbSearched: false

    function load() {
        enabledRow.checked = printers.isPrinterEnabled();
        printerList = printers.listPrinters();
        defaultPrinter = printers.getDefaultPrinter();
    }

    function findUsb() {
        usbDevices = printers.listUSBPrinters();
        drivers = printers.listUSBPrinterDrivers();
        usbSearched = true;
    }

    function addNetwork() {
        nameField.errorText = printers.printerNameProblem(nameField.text.trim());
        hostField.errorText = printers.printerHostProblem(hostField.text.trim());
        if (nameField.errorText !== "" || hostField.errorText !== "")
            return;
        if (printers.addPrinter(nameField.text.trim(), hostField.text.trim())) {
            toast.show(qsTr("Printer %1 added.").arg(nameField.text.trim()), "success");
            nameField.clear();
            hostField.clear();
        } else {
            hostField.errorText = printers.lastError();
        }
        load();
    }

    function addUsb() {
        usbNameField.errorText = printers.printerNameProblem(usbNameField.text.trim());
        if (usbNameField.errorText !== "")
            return;
        if (printers.addUSBPrinter(usbNameField.text.trim(), deviceBox.currentText, driverBox.currentText)) {
            toast.show(qsTr("Printer %1 added.").arg(usbNameField.text.trim()), "success");
            usbNameField.clear();
        } else {
            usbNameField.errorText = printers.lastError();
        }
        load();
    }

    Component.onCompleted: load()

    PrintersBackend {
        id: printers
    }

    Card {
        Layout.fillWidth: true
        padding: Theme.spacingS

        SwitchRow {
            id: enabledRow
            Layout.fillWidth: true
            iconName: "printer"
            title: qsTr("Printing in sessions")
            description: qsTr("Remote sessions can print on this terminal's printers.")
            onToggled: {
                printers.setPrinterEnabled(checked);
                checked = printers.isPrinterEnabled();
            }
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Printers")
        subtitle: qsTr("The default printer is the one sessions print to unless told otherwise.")
        headerActions: [
            SecondaryButton {
                iconName: "refresh"
                text: qsTr("Refresh")
                onClicked: page.load()
            }
        ]

        Repeater {
            model: page.printerList

            Rectangle {
                Layout.fillWidth: true
                implicitHeight: 52
                color: index % 2 === 0 ? Theme.surfaceAlt : Theme.surface
                radius: Theme.radiusS

                RowLayout {
                    anchors.fill: parent
                    anchors.leftMargin: Theme.spacingM
                    anchors.rightMargin: Theme.spacingS
                    spacing: Theme.spacingM

                    Text {
                        Layout.fillWidth: true
                        text: modelData
                        color: Theme.text
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontBody
                        elide: Text.ElideRight
                    }
                    Text {
                        visible: modelData === page.defaultPrinter
                        text: qsTr("Default")
                        color: Theme.accent
                        font.family: Theme.fontFamily
                        font.pixelSize: Theme.fontSmall
                        font.weight: Font.DemiBold
                    }
                    SecondaryButton {
                        visible: modelData !== page.defaultPrinter
                        text: qsTr("Make default")
                        onClicked: {
                            printers.setCurrentPrinter(modelData);
                            page.load();
                        }
                    }
                    DangerButton {
                        text: qsTr("Delete")
                        onClicked: {
                            page.pendingDelete = modelData;
                            deleteDialog.open();
                        }
                    }
                }
            }
        }

        EmptyState {
            Layout.fillWidth: true
            visible: page.printerList.length === 0
            compact: true
            iconName: "printer"
            title: qsTr("No printers")
            message: qsTr("Add a network printer by its address, or a printer connected by USB.")
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Add a network printer")
        subtitle: qsTr("Printers that support IPP Everywhere (most printers made since 2012) need no driver.")

        FormField {
            id: nameField
            objectName: "nameField"
            Layout.fillWidth: true
            Layout.maximumWidth: 440
            label: qsTr("Printer name")
            placeholderText: qsTr("For example Office_2nd_floor")
            hintText: qsTr("Letters, digits, _ . - + @; no spaces.")
            onEdited: errorText = ""
        }
        FormField {
            id: hostField
            objectName: "hostField"
            Layout.fillWidth: true
            Layout.maximumWidth: 440
            label: qsTr("Host name or address")
            placeholderText: "192.168.1.50"
            onEdited: errorText = ""
            onAccepted: page.addNetwork()
        }
        PrimaryButton {
            Layout.topMargin: Theme.spacingS
            iconName: "plus"
            text: qsTr("Add printer")
            onClicked: page.addNetwork()
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Add a USB printer")
        subtitle: qsTr("Connect the printer, then look for it and choose its driver.")

        SecondaryButton {
            visible: !page.usbSearched
            iconName: "usb"
            text: qsTr("Look for USB printers")
            onClicked: page.findUsb()
        }

        ColumnLayout {
            Layout.fillWidth: true
            visible: page.usbSearched
            spacing: Theme.spacingM

            FormComboBox {
                id: deviceBox
                Layout.fillWidth: true
                label: qsTr("Printer")
                model: page.usbDevices
                enabled: page.usbDevices.length > 0
                placeholderText: qsTr("No USB printer found")

                IconButton {
                    iconName: "refresh"
                    text: qsTr("Look again")
                    onClicked: page.findUsb()
                }
            }
            FormComboBox {
                id: driverBox
                Layout.fillWidth: true
                label: qsTr("Driver")
                model: page.drivers
                enabled: page.drivers.length > 0
                placeholderText: qsTr("No drivers found")
            }
            FormField {
                id: usbNameField
                Layout.fillWidth: true
                Layout.maximumWidth: 440
                label: qsTr("Printer name")
                hintText: qsTr("Letters, digits, _ . - + @; no spaces.")
                onEdited: errorText = ""
                onAccepted: page.addUsb()
            }
            PrimaryButton {
                iconName: "plus"
                text: qsTr("Add printer")
                enabled: deviceBox.currentIndex >= 0 && driverBox.currentIndex >= 0
                onClicked: page.addUsb()
            }
        }
    }

    ModalDialog {
        id: deleteDialog
        title: qsTr("Delete printer")
        message: qsTr("Delete the printer %1? Sessions can no longer print to it.").arg(page.pendingDelete)
        okText: qsTr("Delete")
        destructive: true
        onOkClicked: {
            printers.deletePrinter(page.pendingDelete);
            page.load();
        }
    }

    Toast {
        id: toast
    }
}
