import QtQuick 2.15
import QtQuick.Layouts 1.15
import NorbixUi 1.0
import com.CertificatesStorage 1.0

PageScaffold {
    id: page

    readonly property var model: typeof certModel !== "undefined" ? certModel : null
    property var files: []
    property string pendingRemoval: ""

    function refreshList() {
        if (model)
            model.update(showAllBox.checked);
    }

    function refreshFiles() {
        var previous = fileBox.currentIndex >= 0 ? files[fileBox.currentIndex].path : "";
        var list = [];
        var paths = storage.listAvailableCertificates();
        for (var i = 0; i < paths.length; ++i) {
            var at = paths[i].indexOf("/media/");
            list.push({ text: at >= 0 ? paths[i].substring(at + 7) : paths[i], path: paths[i] });
        }
        files = list;
        var index = -1;
        for (var j = 0; j < list.length; ++j) {
            if (list[j].path === previous)
                index = j;
        }
        fileBox.currentIndex = index >= 0 ? index : (list.length > 0 ? 0 : -1);
    }

    readonly property string selectedFile: fileBox.currentIndex >= 0 && fileBox.currentIndex < files.length
                                           ? files[fileBox.currentIndex].path : ""
    readonly property bool needsPassword: selectedFile !== "" && storage.needsPassword(selectedFile)

    function importSelected() {
        if (needsPassword && passwordField.text === "") {
            passwordField.errorText = qsTr("Enter the password of the certificate file.");
            return;
        }
        busy.visible = true;
        storage.addCertificate(selectedFile, passwordField.text);
    }

    Component.onCompleted: {
        refreshList();
        refreshFiles();
    }

    CertificatesStorage {
        id: storage
        onCertOk: {
            busy.visible = false;
            passwordField.clear();
            resultDialog.title = qsTr("Result");
            resultDialog.message = qsTr("Certificate added");
            resultDialog.open();
            page.refreshList();
        }
        onCertFailed: {
            busy.visible = false;
            resultDialog.title = qsTr("Error");
            resultDialog.message = text;
            resultDialog.open();
            page.refreshList();
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Import a certificate")
        subtitle: qsTr("Certificate files (.crt, .cer, .der, .pfx) on a USB drive. The certificate is trusted by this terminal and its sessions.")

        FormComboBox {
            id: fileBox
            Layout.fillWidth: true
            label: qsTr("Certificate file")
            model: page.files
            textRole: "text"
            enabled: page.files.length > 0
            placeholderText: qsTr("No certificate files found")
            hintText: page.files.length === 0 ? qsTr("Insert a USB drive with certificate files, then refresh the list.") : ""
            onActivated: passwordField.errorText = ""

            IconButton {
                iconName: "refresh"
                text: qsTr("Refresh file list")
                onClicked: page.refreshFiles()
            }
        }

        PasswordField {
            id: passwordField
            Layout.fillWidth: true
            Layout.maximumWidth: 440
            visible: page.needsPassword
            label: qsTr("Password of the certificate file")
            onEdited: errorText = ""
            onAccepted: page.importSelected()
        }

        RowLayout {
            spacing: Theme.spacingM

            PrimaryButton {
                iconName: "download"
                text: qsTr("Import")
                enabled: page.selectedFile !== "" && !busy.visible
                onClicked: page.importSelected()
            }

            Spinner {
                id: busy
                visible: false
                size: 22
            }
        }
    }

    Card {
        Layout.fillWidth: true
        title: qsTr("Installed certificates")
        subtitle: qsTr("Authorities this terminal trusts in addition to the system's own.")
        headerActions: [
            SecondaryButton {
                iconName: "refresh"
                text: qsTr("Refresh")
                onClicked: page.refreshList()
            }
        ]

        NxCheckBox {
            id: showAllBox
            Layout.fillWidth: true
            text: qsTr("Show all certificates")
            onToggled: page.refreshList()
        }

        // Column headings of the list below.
        RowLayout {
            Layout.fillWidth: true
            visible: certRepeater.count > 0
            spacing: Theme.spacingM

            Repeater {
                model: [
                    { text: page.model ? page.model.headerData(0, Qt.Horizontal) : "", width: -1 },
                    { text: page.model ? page.model.headerData(1, Qt.Horizontal) : "", width: 190 },
                    { text: page.model ? page.model.headerData(2, Qt.Horizontal) : "", width: 190 },
                    { text: page.model ? page.model.headerData(3, Qt.Horizontal) : "", width: 104 }
                ]
                Text {
                    Layout.fillWidth: modelData.width < 0
                    Layout.preferredWidth: modelData.width < 0 ? 1 : modelData.width
                    text: modelData.text
                    color: Theme.textMuted
                    font.family: Theme.fontFamily
                    font.pixelSize: Theme.fontSmall
                    font.weight: Font.DemiBold
                    elide: Text.ElideRight
                }
            }
        }

        ColumnLayout {
            Layout.fillWidth: true
            spacing: 0

            Repeater {
                id: certRepeater
                model: page.model

                Rectangle {
                    Layout.fillWidth: true
                    implicitHeight: 52
                    color: index % 2 === 0 ? Theme.surfaceAlt : Theme.surface
                    radius: Theme.radiusS

                    RowLayout {
                        anchors.fill: parent
                        anchors.leftMargin: Theme.spacingS
                        anchors.rightMargin: Theme.spacingS
                        spacing: Theme.spacingM

                        Column {
                            Layout.fillWidth: true
                            Layout.preferredWidth: 1
                            spacing: 2
                            Text {
                                width: parent.width
                                text: model.name
                                color: Theme.text
                                font.family: Theme.fontFamily
                                font.pixelSize: Theme.fontBody
                                elide: Text.ElideRight
                            }
                            Text {
                                width: parent.width
                                text: model.fileName !== "" ? model.fileName : qsTr("System certificate")
                                color: Theme.textMuted
                                font.family: Theme.fontFamily
                                font.pixelSize: Theme.fontCaption
                                elide: Text.ElideRight
                            }
                        }
                        Text {
                            Layout.preferredWidth: 190
                            text: model.notBefore
                            color: Theme.textSecondary
                            font.family: Theme.fontFamily
                            font.pixelSize: Theme.fontSmall
                            elide: Text.ElideRight
                        }
                        Column {
                            Layout.preferredWidth: 190
                            spacing: 2
                            Text {
                                width: parent.width
                                text: model.notAfter
                                color: Theme.textSecondary
                                font.family: Theme.fontFamily
                                font.pixelSize: Theme.fontSmall
                                elide: Text.ElideRight
                            }
                            // Expired (3) or expiring within 30 days (2), with the date.
                            Text {
                                width: parent.width
                                visible: model.expiryText !== ""
                                text: model.expiryText
                                color: model.expiryState === 3 ? Theme.danger : Theme.warning
                                font.family: Theme.fontFamily
                                font.pixelSize: Theme.fontCaption
                                font.weight: Font.DemiBold
                                elide: Text.ElideRight
                            }
                        }
                        Item {
                            Layout.preferredWidth: 104
                            implicitHeight: removeButton.implicitHeight

                            DangerButton {
                                id: removeButton
                                anchors.right: parent.right
                                visible: model.fileName !== ""
                                text: qsTr("Remove")
                                onClicked: {
                                    page.pendingRemoval = model.fileName;
                                    removeDialog.open();
                                }
                            }
                        }
                    }
                }
            }
        }

        EmptyState {
            Layout.fillWidth: true
            visible: certRepeater.count === 0
            compact: true
            iconName: "award"
            title: qsTr("No certificates installed")
            message: qsTr("Import a certificate from a USB drive, or show the system's certificates too.")
        }
    }

    ModalDialog {
        id: removeDialog
        title: qsTr("Remove certificate")
        message: qsTr("Remove %1? This terminal and its sessions will no longer trust the servers it vouches for.").arg(page.pendingRemoval)
        okText: qsTr("Remove")
        destructive: true
        onOkClicked: {
            if (page.model)
                page.model.removeCertificate(page.pendingRemoval, showAllBox.checked);
        }
    }

    ModalDialog {
        id: resultDialog
        showCancel: false
    }
}
